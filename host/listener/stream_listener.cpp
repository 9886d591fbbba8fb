// SPDX-License-Identifier: Apache-2.0
#include "host/listener/stream_listener.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace host {

namespace {

constexpr std::size_t rememberedDigitCount = 8;

} // namespace

StreamListener::StreamListener(const measure::DigitClips &clips, Sink sink)
    : sink_(std::move(sink)), search_(clips), measuring_(clips)
{}

void StreamListener::feed(std::span<const float> interleaved, SteadyTime end)
{
    history_.append(interleaved, end);
    const std::vector<FrameSpan> spans = spans_.advance(history_);
    undecided_.insert(undecided_.end(), spans.begin(), spans.end());
    tellDigits(search_.advance(history_, spans_.lastLoudEnd()));
    tellSounds(history_.frameCount() - DigitSearch::delayFrameCount);
}

void StreamListener::finish()
{
    if (const std::optional<FrameSpan> span = spans_.finish())
        undecided_.push_back(*span);
    tellDigits(search_.finish(history_, spans_.lastLoudEnd()));
    tellSounds(std::numeric_limits<std::int64_t>::max());
}

HeardSound StreamListener::describe(FrameSpan span) const
{
    HeardSound sound;
    sound.start = history_.timeOf(span.first);
    sound.duration = std::chrono::milliseconds(span.count() * 1000 / std::int64_t{captureRate});
    sound.levelDbfs = history_.levelDbfs(span);
    sound.isClipped = history_.isClipped(span);
    return sound;
}

void StreamListener::tellDigits(const std::vector<FoundDigit> &digits)
{
    for (const FoundDigit &found : digits) {
        HeardSound sound = describe(found.span);
        sound.digit = found.digit;
        sound.score = found.score;
        sound.margin = found.margin;
        sound.measured = measuring_.measure(history_, found);
        sink_(sound);
        digits_.push_back(found.span);
    }
    while (digits_.size() > rememberedDigitCount)
        digits_.pop_front();
}

// A sound waits until every digit that it may be a part of has been told.
void StreamListener::tellSounds(std::int64_t decidedUpTo)
{
    while (!undecided_.empty() && undecided_.front().end < decidedUpTo) {
        if (!isPartOfADigit(undecided_.front()))
            sink_(describe(undecided_.front()));
        undecided_.pop_front();
    }
}

bool StreamListener::isPartOfADigit(FrameSpan span) const
{
    return std::any_of(digits_.begin(), digits_.end(), [span](const FrameSpan &digit) { return digit.overlaps(span); });
}

} // namespace host
