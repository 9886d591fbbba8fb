// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace host {

/// Brings interleaved stereo frames to `captureRate`, in pieces, as one stream and without losing a part of a frame: the sound
/// library's own converter drifts by hundreds of millionths, which would be measured as the device's. Frames at that rate pass
/// through as they are. A windowed sine (Blackman), flat within 0.1 dB up to nine tenths of the narrower band.
class RateConverter {
public:
    /// \param rate frames per second, above 0
    explicit RateConverter(std::uint32_t rate);

    /// What is ready by now, 32 frames of the slower rate behind; valid until the next call.
    std::span<const float> convert(std::span<const float> stereo);

private:
    void appendFrame();
    void forgetUsed();

    std::size_t step_;       ///< from one frame to the next, in phases
    std::size_t phaseCount_; ///< of a frame that comes in
    std::size_t halfWidth_ = 0;
    std::vector<float> taps_;    ///< those of each phase in turn
    std::vector<float> waiting_; ///< frames that are needed still, interleaved
    std::size_t position_ = 0;   ///< of the next frame, in phases from the first waiting one
    std::vector<float> ready_;
};

} // namespace host
