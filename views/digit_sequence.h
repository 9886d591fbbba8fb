// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/volume_guard.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// The digits that are played and typed back.
namespace ostra {

inline constexpr std::size_t sequenceLength = 3;

/// A digit from 0 to 9, each equally likely, from the process-wide generator.
int randomDigit();

/// Where the playback view gets what a test must choose or count. The product never writes them.
struct PlaybackSources {
    decltype(&randomDigit) digit = &randomDigit;
    decltype(&audio::makeVolumeGuard) volumeGuard = &audio::makeVolumeGuard;
};

/// The sources in force. GUI thread only.
PlaybackSources &playbackSources() noexcept;

/// `sequenceLength` different digits from `playbackSources().digit`; what was drawn already is drawn again.
std::vector<int> drawSequence();

} // namespace ostra
