// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/listener/clip_search.h"
#include "host/listener/ear.h"
#include "host/listener/loud_spans.h"

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

namespace host {

/// A place that is like the clip.
struct HeardClip {
    double score = 0;
    bool isFound = false;
    SteadyTime start; ///< where the clip's file begins
    std::chrono::milliseconds duration{0};
    double levelDbfs = lowestDbfs; ///< RMS over its duration
    bool isClipped = false;
};

/// Tells where a capture is like one clip, up to 1.5 s after the end of the place, each place twice. Silence is like nothing.
class ClipListener : public Ear {
public:
    using Sink = std::function<void(const HeardClip &)>;

    /// \param clip nothing to listen to the level alone
    ClipListener(const std::optional<measure::MonoSound> &clip, Sink sink);

    void feed(std::span<const float> interleaved, SteadyTime end) override;
    void finish() override;
    double takeLoudestDbfs() override { return spans_.takeLoudestDbfs(); }

private:
    void tell(const std::vector<ClipPlace> &places) const;

    Sink sink_;
    SoundHistory history_;
    LoudSpans spans_;
    std::optional<ClipSearch> search_;
};

} // namespace host
