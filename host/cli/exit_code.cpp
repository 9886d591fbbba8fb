// SPDX-License-Identifier: Apache-2.0
#include "host/cli/exit_code.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace host {

namespace {

std::ptrdiff_t badnessOf(ExitCode code)
{
    constexpr std::array order{ExitCode::success,      ExitCode::cannotBePerformed,
                               ExitCode::notCompleted, ExitCode::noModule,
                               ExitCode::usage,        ExitCode::failed};
    return std::find(order.begin(), order.end(), code) - order.begin();
}

} // namespace

ExitCode worseOf(ExitCode one, ExitCode other) noexcept { return badnessOf(other) > badnessOf(one) ? other : one; }

int gnuCodeOf(ExitCode code) noexcept
{
    constexpr int skipped = 77;
    constexpr int hardError = 99;
    switch (code) {
    case ExitCode::cannotBePerformed:
        return skipped;
    case ExitCode::notCompleted:
    case ExitCode::noModule:
        return hardError;
    default:
        return static_cast<int>(code);
    }
}

} // namespace host
