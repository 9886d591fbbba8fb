// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/listener/block_ring.h"

#include <cstdint>
#include <deque>
#include <span>
#include <vector>

namespace host {

/// Below it is silence.
constexpr double silenceDbfs = -50.0;
/// Stands for digital silence, whose level has no logarithm.
constexpr double lowestDbfs = -120.0;

/// Level of a mean power; a full-scale square wave has 0 dBFS.
double levelOf(double meanPower);

/// Frames of the capture, counted from its beginning: from `first` up to, without, `end`.
struct FrameSpan {
    std::int64_t first = 0;
    std::int64_t end = 0;

    std::int64_t count() const { return end - first; }
    bool overlaps(const FrameSpan &other) const { return first < other.end && other.first < end; }
};

/// The last seconds of a capture as one channel without its direct current. What lies outside what it holds is silence.
class SoundHistory {
public:
    void append(std::span<const float> interleaved, SteadyTime end);

    /// Frames since the beginning.
    std::int64_t frameCount() const { return first_ + std::ssize(samples_); }
    std::vector<float> copy(FrameSpan span) const;
    double levelDbfs(FrameSpan span) const;
    /// RMS level of left (0) or right (1) alone.
    double channelDbfs(FrameSpan span, std::size_t channel) const;
    /// Whether three frames in a row stand at the end of the scale, as those of a cut-off wave do.
    bool isClipped(FrameSpan span) const;
    /// How many such frames there are, in whichever channel.
    std::int64_t countClipped(FrameSpan span) const;
    SteadyTime timeOf(std::int64_t frame) const;

private:
    struct Mark {
        std::int64_t frame;
        SteadyTime time;
    };
    struct Channel {
        float input = 0;
        float output = 0;
        int fullFrameCount = 0;
    };

    float withoutDirectCurrent(Channel &channel, float sample) const;
    void watchForClipping(Channel &channel, float sample);
    void forgetOldest();
    template <typename Value>
    double levelOfEach(FrameSpan span, Value value) const;

    std::int64_t first_ = 0;
    std::vector<float> samples_;
    std::vector<float> sides_; ///< by how much left lies above the mean
    std::deque<std::int64_t> clippedFrames_;
    std::deque<Mark> marks_;
    std::array<Channel, captureChannelCount> channels_;
};

} // namespace host
