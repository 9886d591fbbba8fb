// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace host {

/// How a sample lies in memory, little-endian. Of 24 valid bits in four bytes the valid ones are the high ones: `int32`.
enum class SampleKind { unknown, float32, int16, int24, int32 };

/// The format in which a system mixes what an output plays.
struct MixFormat {
    SampleKind kind = SampleKind::unknown;
    std::size_t channelCount = 0;
    std::uint32_t rate = 0; ///< frames per second

    bool isKnown() const { return kind != SampleKind::unknown && channelCount > 0 && rate > 0; }
    std::size_t frameByteCount() const;
};

/// Appends the interleaved frames' front left and front right; of one channel it makes two. Front left and front right are the
/// first two channels of every layout that has them. A sample that is no number becomes
/// silence; a frame that is cut off is left out.
void appendStereo(std::span<const std::byte> frames, const MixFormat &format, std::vector<float> &stereo);

} // namespace host
