// SPDX-License-Identifier: Apache-2.0
#include "utils/pace.h"

namespace ostra::utils {

Pace &pace() noexcept
{
    static Pace pace;
    return pace;
}

} // namespace ostra::utils
