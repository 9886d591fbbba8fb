// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/sal/driver_rows_linux.h"

#include <chrono>
#include <cstdint>

namespace sal {

/// Bound of one whole look at the sound server. A local server answers within a few milliseconds; a frozen one never does, and
/// a device list must not wait for it.
inline constexpr std::chrono::milliseconds soundServerBound{2000};

/// Asks the user's sound server for its sinks and cards over a connection of its own. Returns 0, or ECONNREFUSED, ETIMEDOUT or
/// ENOMEM; `facts` is then unspecified. Never starts a server. Blocks for at most `bound`. Any thread.
std::int32_t readSoundServer(SoundFacts &facts, std::chrono::milliseconds bound = soundServerBound);

} // namespace sal
