// SPDX-License-Identifier: Apache-2.0
#include "host/listener/loud_spans.h"

#include <algorithm>
#include <utility>

namespace host {

namespace {

constexpr std::int64_t silentFrameCount = 6 * loudnessStepFrameCount;
constexpr std::int64_t longestFrameCount = std::int64_t{captureRate} * 2;
constexpr std::int64_t shortestFrameCount = 2 * loudnessStepFrameCount;

} // namespace

std::vector<FrameSpan> LoudSpans::advance(const SoundHistory &history)
{
    std::vector<FrameSpan> spans;
    while (seenFrameCount_ + loudnessStepFrameCount <= history.frameCount()) {
        look(history, {seenFrameCount_, seenFrameCount_ + loudnessStepFrameCount}, spans);
        seenFrameCount_ += loudnessStepFrameCount;
    }
    return spans;
}

void LoudSpans::look(const SoundHistory &history, FrameSpan step, std::vector<FrameSpan> &spans)
{
    const double level = history.levelDbfs(step);
    loudestDbfs_ = std::max(loudestDbfs_, level);
    if (level >= silenceDbfs) {
        lastLoudEnd_ = step.end;
        open_ = FrameSpan{open_ ? open_->first : step.first, step.end};
    }
    if (open_ && (step.end - open_->end >= silentFrameCount || open_->count() >= longestFrameCount))
        close(spans);
}

void LoudSpans::close(std::vector<FrameSpan> &spans)
{
    if (const std::optional<FrameSpan> span = finish())
        spans.push_back(*span);
}

std::optional<FrameSpan> LoudSpans::finish()
{
    const std::optional<FrameSpan> span = std::exchange(open_, std::nullopt);
    return span && span->count() >= shortestFrameCount ? span : std::nullopt;
}

double LoudSpans::takeLoudestDbfs() { return std::exchange(loudestDbfs_, lowestDbfs); }

} // namespace host
