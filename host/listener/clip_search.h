// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/listener/sound_history.h"
#include "host/measure/matched_filter.h"

#include <vector>

namespace host {

/// The place of a capture that is most like a clip.
struct ClipPlace {
    double score = 0; ///< 0 to 1, of the matched filter
    bool isFound = false;
    FrameSpan span; ///< where the clip's file lies in the capture
};

/// Looks for one clip of a few seconds in an endless capture: every 500 ms the last stretch that can hold it is compared with
/// it. Every place is looked at twice.
class ClipSearch {
public:
    /// Longest clip that what is kept of a capture can hold.
    static constexpr std::int64_t maxFrameCount = std::int64_t{captureRate} * 5;
    /// A clip is found above it. The sentence of the bundle scored 0.99 in a clean loopback, 0.89 driven into the limits, 0.68
    /// through a simulated small loudspeaker and room, 0.63 under white noise 4 dB louder than the speech, 0.59 where the sound
    /// server had lost 60 ms of its middle. Of what is not the sentence, white noise scored 0.04, the spoken digits of nine
    /// languages 0.18 at most, four other sentences of the same voice 0.21 at most, the sentence backwards 0.24, its words
    /// by another voice 0.30, and a sentence whose first half is the same 0.38.
    static constexpr double minScore = 0.45;

    explicit ClipSearch(const measure::MonoSound &clip);

    /// One place for each look that has become possible. \param lastLoudEnd nothing is sought where all is silent after it.
    std::vector<ClipPlace> advance(const SoundHistory &history, std::int64_t lastLoudEnd);
    /// Looks at what is left at the end of a capture.
    std::vector<ClipPlace> finish(const SoundHistory &history, std::int64_t lastLoudEnd);

private:
    void look(const SoundHistory &history, std::int64_t end, std::int64_t lastLoudEnd, std::vector<ClipPlace> &places) const;

    measure::MatchedFilter filter_;
    std::int64_t clipFrameCount_;
    std::int64_t seenFrameCount_ = 0;
};

} // namespace host
