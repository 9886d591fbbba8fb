// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

namespace ostra::audio {

/// What an audio endpoint is called: for programs and for people.
struct EndpointName {
    std::u16string id;       ///< as in `EndpointVolume`
    std::string description; ///< UTF-8; empty where the system has none
};

using EndpointNames = std::vector<EndpointName>;

/// Appends the name of every active endpoint, in the order of `readEndpointVolumes` and under the same rules of threads and
/// time. Returns 0, or 1 at the first failing call; what was read before it stays in the list. An endpoint that does not tell
/// its description is no failure.
int readEndpointNames(EndpointNames &list) noexcept;

} // namespace ostra::audio
