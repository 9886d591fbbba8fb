// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/listener/digit_measuring.h"
#include "host/listener/digit_search.h"
#include "host/listener/ear.h"
#include "host/listener/loud_spans.h"

#include <chrono>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

namespace host {

/// A digit, or a sound that is none of the ten.
struct HeardSound {
    std::optional<int> digit;
    double score = 0; ///< of the matched filter; 0 without a digit
    double margin = 0;
    SteadyTime start; ///< where the clip's file begins, or where the sound rises above silence
    std::chrono::milliseconds duration{0};
    double levelDbfs = lowestDbfs; ///< RMS over its duration
    bool isClipped = false;
    std::optional<DigitMeasurement> measured; ///< of a digit
};

/// Tells the digits and other sounds of a capture, in the order of their ends, up to 2.4 s after they ended. One thread.
class StreamListener : public Ear {
public:
    using Sink = std::function<void(const HeardSound &)>;

    StreamListener(const measure::DigitClips &clips, Sink sink);

    void feed(std::span<const float> interleaved, SteadyTime end) override;
    void finish() override;
    double takeLoudestDbfs() override { return spans_.takeLoudestDbfs(); }

private:
    HeardSound describe(FrameSpan span) const;
    void tellDigits(const std::vector<FoundDigit> &digits);
    void tellSounds(std::int64_t decidedUpTo);
    bool isPartOfADigit(FrameSpan span) const;

    Sink sink_;
    SoundHistory history_;
    LoudSpans spans_;
    DigitSearch search_;
    DigitMeasuring measuring_;
    std::deque<FrameSpan> undecided_;
    std::deque<FrameSpan> digits_;
};

} // namespace host
