// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/listener/block_ring.h"

#include <chrono>
#include <cstdint>
#include <span>
#include <vector>

namespace host {

/// Frames that follow each other without a gap.
struct LoopbackStretch {
    std::vector<float> stereo; ///< interleaved
    SteadyTime end;            ///< when its last frame was there
    bool isHeard = true;       ///< false for silence of which nobody knows whether it was one
};

/// Makes a capture without gaps of what an output's loopback delivers: while no program plays it delivers nothing at all, and
/// time passes nevertheless. Knows no clock, so that it can be told any time.
class LoopbackTimeline {
public:
    /// Packets come every 10 ms while something plays; ten of them missing are a pause, no delay.
    static constexpr std::chrono::milliseconds pauseAfter{100};
    /// Speech and its pauses reach no further than this; longer nothing may as well be a loopback that hears nothing.
    static constexpr std::chrono::seconds longestHeardPause{2};
    /// Who looks less often may have missed packets: the system keeps a second of them.
    static constexpr std::chrono::milliseconds longestLookInterval{500};

    LoopbackTimeline(std::uint32_t rate, SteadyTime start) : rate_(rate), end_(start), lastPacketEnd_(start), looked_(start) {}

    /// What there is up to now, in order, with silence where nothing played. Sound is never cut: where it overlaps silence that
    /// was told before, it follows it.
    /// \param stereo all frames that have come since the last call, interleaved; the last one comes just now
    std::vector<LoopbackStretch> advance(std::span<const float> stereo, SteadyTime now);

private:
    void fill(SteadyTime end, bool isWatched, std::vector<LoopbackStretch> &stretches);
    bool isHeardPause(SteadyTime end) const;
    SteadyTime::duration lengthOf(std::size_t frameCount) const;

    std::uint32_t rate_;
    SteadyTime end_;
    SteadyTime lastPacketEnd_;
    SteadyTime looked_;
    bool isPaused_ = true;
    bool hasHeard_ = false;
};

} // namespace host
