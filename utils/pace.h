// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <chrono>

namespace ostra::utils {

/// How fast the clock behind the dialogs' timers goes. Automated tests set it before they make a dialog: a run of half a minute
/// then takes less than a second, with everything in the same order. The product never writes it. GUI thread only.
struct Pace {
    int divisor = 1; ///< 1 or more: what every wait is divided by
};

/// The pace in force.
Pace &pace() noexcept;

/// The interval of a timer that waits for `designed`, 1 ms at least.
inline std::chrono::milliseconds paced(std::chrono::milliseconds designed) noexcept
{
    return std::max(designed / pace().divisor, std::chrono::milliseconds(1));
}

} // namespace ostra::utils
