// SPDX-License-Identifier: Apache-2.0
#include "host/sal/services.h"

#include <chrono>

namespace sal {
namespace {

class SteadyTimer final : public Timer {
public:
    std::uint64_t ticks() override
    {
        const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
        return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(sinceStart).count());
    }
};

} // namespace

Timer &timerService()
{
    static SteadyTimer service;
    return service;
}

} // namespace sal
