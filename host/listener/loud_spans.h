// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/listener/sound_history.h"

#include <optional>
#include <vector>

namespace host {

/// Frames of one step of the loudness.
constexpr std::int64_t loudnessStepFrameCount = std::int64_t{captureRate} / 20;

/// Finds where a capture is louder than `silenceDbfs`, in steps of 50 ms.
class LoudSpans {
public:
    /// Looks at the steps that have become complete. A span is over when 300 ms were silent, or cut after 2 s so that an
    /// endless sound is told at all; a lone step is a click and left out.
    std::vector<FrameSpan> advance(const SoundHistory &history);
    /// The span that is still open, at the end of a capture.
    std::optional<FrameSpan> finish();

    /// End of the latest loud step; 0 when there was none.
    std::int64_t lastLoudEnd() const { return lastLoudEnd_; }
    /// Loudest step since the last call; `lowestDbfs` when none was complete.
    double takeLoudestDbfs();

private:
    void look(const SoundHistory &history, FrameSpan step, std::vector<FrameSpan> &spans);
    void close(std::vector<FrameSpan> &spans);

    std::int64_t seenFrameCount_ = 0;
    std::int64_t lastLoudEnd_ = 0;
    std::optional<FrameSpan> open_;
    double loudestDbfs_ = lowestDbfs;
};

} // namespace host
