// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ostra::audio {

/// The volume of one audio endpoint: a loudspeaker or a microphone.
struct EndpointVolume {
    float level = 0.0F; ///< of the whole endpoint, 0.0 to 1.0
    bool muted = false;
    /// The system's own name of the endpoint, the same after a restart; empty in a record that is meant for whatever endpoint
    /// stands at its position. At most `idUnitLimit` units on Windows.
    std::u16string id;
    /// The sound server's own volume of each channel, in which balance and levels above 100 % survive; empty on Windows, and
    /// in a record that sets all channels to `level`.
    std::vector<std::uint32_t> channelVolumes;
};

using EndpointVolumes = std::vector<EndpointVolume>;

/// Units of an endpoint id that a record keeps. A longer id is cut there, and equals no endpoint's id any more.
inline constexpr std::size_t idUnitLimit = 255;

/// Bound of one whole pass over a Linux sound server. A local server needs a few milliseconds; a frozen one never answers, and
/// whoever raises or restores the levels is a user interface.
inline constexpr std::chrono::milliseconds passBound{2000};

/// Appends the volume of every active endpoint, playback and capture alike, in the system's order. Returns 0, or 1 at the
/// first failing call; what was read before it stays in the list. Initialises COM on the calling thread for its own length and
/// accepts a thread that lives in either kind of apartment. On Linux monitors are no endpoints, and `passBound` holds.
int readEndpointVolumes(EndpointVolumes &list) noexcept;

/// Gives every active endpoint, in the system's order, the record that `chooseRecord` finds for it. Returns 0, or 1 at the
/// first endpoint without a record or the first failing call; the endpoints before it keep what they were given. Threads and
/// bounds as above.
int applyEndpointVolumes(const EndpointVolumes &list) noexcept;

/// The record for the endpoint with `id` at `position` of the enumeration: the first one with the same id, or, once the search
/// meets a record without an id, the one at `position`. Null when there is none.
const EndpointVolume *chooseRecord(const EndpointVolumes &list, std::u16string_view id, std::size_t position) noexcept;

/// Levels this close count as the same: half a step of the scale that users see. Drivers round a level to steps of their own,
/// so that one which was set comes back a little different.
inline constexpr float levelTolerance = 0.005F;

/// Whether both describe the same mute state and, channel by channel where both know their channels, the same level. Channels
/// are compared exactly, levels by `levelTolerance`.
bool hasSameVolume(const EndpointVolume &one, const EndpointVolume &other) noexcept;

/// The records of `saved` whose endpoint is in `current` with another volume. Both lists carry ids.
EndpointVolumes changedEndpoints(const EndpointVolumes &saved, const EndpointVolumes &current);

/// `saved`, followed by the records of `current` whose endpoint it does not know: a list that can be applied to the end
/// although endpoints have appeared since it was saved. Both lists carry ids.
EndpointVolumes withNewcomers(EndpointVolumes saved, const EndpointVolumes &current);

} // namespace ostra::audio
