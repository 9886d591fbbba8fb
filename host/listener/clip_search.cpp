// SPDX-License-Identifier: Apache-2.0
#include "host/listener/clip_search.h"

#include <algorithm>

namespace host {

namespace {

constexpr std::int64_t hopFrameCount = std::int64_t{captureRate} / 2;
/// A clip's ends are silent: this much of them may lie outside the window.
constexpr std::int64_t toleranceFrameCount = std::int64_t{captureRate} / 50;

// Nine silent clips beside it cost nothing and are like nothing.
measure::DigitClips alone(const measure::MonoSound &clip)
{
    measure::DigitClips clips;
    clips.front() = clip;
    return clips;
}

} // namespace

ClipSearch::ClipSearch(const measure::MonoSound &clip)
    : filter_(alone(clip)),
      clipFrameCount_(std::ssize(clip.samples) * std::int64_t{captureRate} / std::max(1U, clip.sampleRate))
{}

std::vector<ClipPlace> ClipSearch::advance(const SoundHistory &history, std::int64_t lastLoudEnd)
{
    std::vector<ClipPlace> places;
    while (seenFrameCount_ + hopFrameCount <= history.frameCount()) {
        seenFrameCount_ += hopFrameCount;
        look(history, seenFrameCount_, lastLoudEnd, places);
    }
    return places;
}

std::vector<ClipPlace> ClipSearch::finish(const SoundHistory &history, std::int64_t lastLoudEnd)
{
    std::vector<ClipPlace> places = advance(history, lastLoudEnd);
    look(history, history.frameCount(), lastLoudEnd, places);
    return places;
}

void ClipSearch::look(const SoundHistory &history, std::int64_t end, std::int64_t lastLoudEnd,
                      std::vector<ClipPlace> &places) const
{
    const FrameSpan window{std::max<std::int64_t>(0, end - clipFrameCount_ - 2 * hopFrameCount), end};
    if (lastLoudEnd <= window.first)
        return;
    const measure::Recognition result = filter_.recognise({captureRate, history.copy(window)});
    if (!result.digit)
        return;
    const std::int64_t first = window.first + result.lagFrames;
    const FrameSpan span{first, first + clipFrameCount_};
    const bool isWhole = span.first >= window.first - toleranceFrameCount && span.end <= window.end + toleranceFrameCount;
    places.push_back({result.score, isWhole && result.score > minScore, span});
}

} // namespace host
