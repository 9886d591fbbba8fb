// SPDX-License-Identifier: Apache-2.0
#include "host/listener/loopback_timeline.h"

#include <utility>

namespace host {

using std::chrono::nanoseconds;

SteadyTime::duration LoopbackTimeline::lengthOf(std::size_t frameCount) const
{
    return std::chrono::duration_cast<SteadyTime::duration>(
        nanoseconds(static_cast<std::int64_t>(frameCount) * 1'000'000'000 / rate_));
}

bool LoopbackTimeline::isHeardPause(SteadyTime end) const { return hasHeard_ && end - lastPacketEnd_ <= longestHeardPause; }

void LoopbackTimeline::fill(SteadyTime end, bool isWatched, std::vector<LoopbackStretch> &stretches)
{
    if (end <= end_)
        return;
    const nanoseconds missing = end - end_;
    const auto frameCount = static_cast<std::size_t>(missing.count() * std::int64_t{rate_} / 1'000'000'000);
    if (frameCount == 0)
        return;
    end_ += lengthOf(frameCount);
    stretches.push_back({std::vector<float>(frameCount * captureChannelCount), end_, isWatched && isHeardPause(end_)});
}

std::vector<LoopbackStretch> LoopbackTimeline::advance(std::span<const float> stereo, SteadyTime now)
{
    std::vector<LoopbackStretch> stretches;
    const bool isWatched = now - std::exchange(looked_, now) <= longestLookInterval;
    const SteadyTime::duration length = lengthOf(stereo.size() / captureChannelCount);
    isPaused_ = isPaused_ || now - length - end_ > pauseAfter;
    if (isPaused_) // a packet may be on its way still
        fill(stereo.empty() ? now - pauseAfter : now - length, isWatched, stretches);
    if (stereo.empty())
        return stretches;
    // The stream's clock and this one's drift apart: within a stream frames follow each other, whatever the time.
    isPaused_ = false;
    hasHeard_ = true;
    end_ = now;
    lastPacketEnd_ = now;
    stretches.push_back({{stereo.begin(), stereo.end()}, now, true});
    return stretches;
}

} // namespace host
