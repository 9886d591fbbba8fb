// SPDX-License-Identifier: Apache-2.0
#include "host/listener/clip_listener.h"

#include <utility>

namespace host {

ClipListener::ClipListener(const std::optional<measure::MonoSound> &clip, Sink sink) : sink_(std::move(sink))
{
    if (clip)
        search_.emplace(*clip);
}

void ClipListener::feed(std::span<const float> interleaved, SteadyTime end)
{
    history_.append(interleaved, end);
    spans_.advance(history_);
    if (search_)
        tell(search_->advance(history_, spans_.lastLoudEnd()));
}

void ClipListener::finish()
{
    if (search_)
        tell(search_->finish(history_, spans_.lastLoudEnd()));
}

void ClipListener::tell(const std::vector<ClipPlace> &places) const
{
    for (const ClipPlace &place : places) {
        HeardClip clip;
        clip.score = place.score;
        clip.isFound = place.isFound;
        clip.start = history_.timeOf(place.span.first);
        clip.duration = std::chrono::milliseconds(place.span.count() * 1000 / std::int64_t{captureRate});
        clip.levelDbfs = history_.levelDbfs(place.span);
        clip.isClipped = history_.isClipped(place.span);
        sink_(clip);
    }
}

} // namespace host
