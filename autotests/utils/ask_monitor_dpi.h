// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace ask_monitor_dpi {

/// What the program ends with.
enum Result { told = 0, notTold = 10, plantedRan = 11, alreadyLoaded = 12 };

/// The argument that has it load the library by its bare name first.
inline constexpr const char *byBareName = "bare";

} // namespace ask_monitor_dpi
