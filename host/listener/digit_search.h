// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/listener/sound_history.h"
#include "host/measure/matched_filter.h"

#include <array>
#include <optional>
#include <vector>

namespace host {

struct FoundDigit {
    int digit = 0;
    double score = 0;
    double margin = 0;
    FrameSpan span; ///< where the clip's file lies in the capture
};

/// Finds spoken digits in an endless capture. Every 250 ms the last 1.6 s are compared with the ten clips; of the windows that
/// hold a whole clip the most alike one counts. No window holds two digits whole while 1 s lies between them, and each digit of
/// up to 0.95 s is alone in two windows at least. Needs no silence around a digit, so steady noise does not hide one.
class DigitSearch {
public:
    /// Frames after which a digit that began there has been told.
    static constexpr std::int64_t delayFrameCount = std::int64_t{captureRate} * 185 / 100;

    explicit DigitSearch(const measure::DigitClips &clips);

    /// Looks at the windows that have become complete. \param lastLoudEnd nothing is sought where all is silent after it.
    std::vector<FoundDigit> advance(const SoundHistory &history, std::int64_t lastLoudEnd);
    /// Looks at what is left at the end of a capture.
    std::vector<FoundDigit> finish(const SoundHistory &history, std::int64_t lastLoudEnd);

private:
    void look(const SoundHistory &history, FrameSpan window, std::int64_t lastLoudEnd, std::vector<FoundDigit> &found);
    std::optional<FoundDigit> recognise(const SoundHistory &history, FrameSpan window) const;
    void consider(const FoundDigit &digit, std::vector<FoundDigit> &found);
    void tellBest(std::vector<FoundDigit> &found);

    measure::MatchedFilter filter_;
    std::array<std::int64_t, measure::digitCount> clipFrameCounts_{};
    std::int64_t seenFrameCount_ = 0;
    std::optional<FoundDigit> best_;
    FrameSpan told_;
};

} // namespace host
