// SPDX-License-Identifier: Apache-2.0
#include "host/listener/digit_search.h"

#include <algorithm>
#include <utility>

namespace host {

namespace {

constexpr std::int64_t hopFrameCount = std::int64_t{captureRate} / 4;
constexpr std::int64_t windowFrameCount = std::int64_t{captureRate} * 16 / 10;
static_assert(DigitSearch::delayFrameCount == windowFrameCount + hopFrameCount);

/// A clip's ends are silent: this much of them may lie outside the window.
constexpr std::int64_t toleranceFrameCount = std::int64_t{captureRate} / 50;

} // namespace

DigitSearch::DigitSearch(const measure::DigitClips &clips) : filter_(clips)
{
    std::transform(clips.begin(), clips.end(), clipFrameCounts_.begin(), [](const measure::MonoSound &clip) {
        return std::ssize(clip.samples) * std::int64_t{captureRate} / std::max(1U, clip.sampleRate);
    });
}

std::vector<FoundDigit> DigitSearch::advance(const SoundHistory &history, std::int64_t lastLoudEnd)
{
    std::vector<FoundDigit> found;
    while (seenFrameCount_ + hopFrameCount <= history.frameCount()) {
        seenFrameCount_ += hopFrameCount;
        look(history, {std::max<std::int64_t>(0, seenFrameCount_ - windowFrameCount), seenFrameCount_}, lastLoudEnd, found);
    }
    return found;
}

std::vector<FoundDigit> DigitSearch::finish(const SoundHistory &history, std::int64_t lastLoudEnd)
{
    std::vector<FoundDigit> found = advance(history, lastLoudEnd);
    const std::int64_t end = history.frameCount();
    look(history, {std::max<std::int64_t>(0, end - windowFrameCount), end}, lastLoudEnd, found);
    tellBest(found);
    return found;
}

void DigitSearch::look(const SoundHistory &history, FrameSpan window, std::int64_t lastLoudEnd, std::vector<FoundDigit> &found)
{
    if (best_ && best_->span.first + toleranceFrameCount < window.first)
        tellBest(found);
    if (lastLoudEnd <= window.first)
        return;
    const std::optional<FoundDigit> digit = recognise(history, window);
    if (digit && lastLoudEnd > digit->span.first)
        consider(*digit, found);
}

std::optional<FoundDigit> DigitSearch::recognise(const SoundHistory &history, FrameSpan window) const
{
    const measure::Recognition result = filter_.recognise({captureRate, history.copy(window)});
    if (!result.accepted)
        return std::nullopt;
    const std::int64_t first = window.first + result.lagFrames;
    const FrameSpan span{first, first + clipFrameCounts_[static_cast<std::size_t>(*result.digit)]};
    if (span.first < window.first - toleranceFrameCount || span.end > window.end + toleranceFrameCount)
        return std::nullopt;
    return FoundDigit{*result.digit, result.score, result.margin, span};
}

void DigitSearch::consider(const FoundDigit &digit, std::vector<FoundDigit> &found)
{
    if (digit.span.overlaps(told_))
        return;
    if (best_ && !best_->span.overlaps(digit.span))
        tellBest(found);
    if (!best_ || digit.score > best_->score)
        best_ = digit;
}

void DigitSearch::tellBest(std::vector<FoundDigit> &found)
{
    if (!best_)
        return;
    told_ = best_->span;
    found.push_back(*std::exchange(best_, std::nullopt));
}

} // namespace host
