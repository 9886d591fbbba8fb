// SPDX-License-Identifier: Apache-2.0
#include "host/operator/heard_log.h"

#include "host/listener/block_ring.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace host {

namespace {

constexpr double lowestDbfs = -120.0;
constexpr qint64 levelSpanMs = 1000;
/// A capture that is heard at all delivers everything but a buffer or two.
constexpr double wantedShare = 0.75;
constexpr double framesPerMs = captureRate / 1000.0;

} // namespace

qint64 steadyNowMs()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

void HeardLog::addSound(const HeardEvent &event) { sounds_.append(event); }

void HeardLog::addLevel(qint64 atMs, double levelDbfs) { levels_.append({atMs, levelDbfs}); }

void HeardLog::addPlace(const HeardPlace &place) { places_.append(place); }

void HeardLog::addMoment(const MeteredMoment &moment) { moments_.append(moment); }

std::optional<HeardPlace> HeardLog::bestPlaceBetween(qint64 fromMs, qint64 toMs) const
{
    std::optional<HeardPlace> best;
    for (const HeardPlace &place : places_) {
        const bool isWithin = place.startMs >= fromMs && place.startMs <= toMs;
        if (isWithin && (!best || std::pair(place.isFound, place.score) > std::pair(best->isFound, best->score)))
            best = place;
    }
    return best;
}

QList<MeteredMoment> HeardLog::momentsBetween(qint64 fromMs, qint64 toMs) const
{
    QList<MeteredMoment> moments;
    std::copy_if(moments_.begin(), moments_.end(), std::back_inserter(moments),
                 [=](const MeteredMoment &moment) { return moment.endMs >= fromMs && moment.endMs <= toMs; });
    return moments;
}

QList<HeardEvent> HeardLog::soundsBetween(qint64 fromMs, qint64 toMs) const
{
    QList<HeardEvent> sounds;
    std::copy_if(sounds_.begin(), sounds_.end(), std::back_inserter(sounds),
                 [=](const HeardEvent &event) { return event.startMs >= fromMs && event.startMs <= toMs; });
    std::stable_sort(sounds.begin(), sounds.end(),
                     [](const HeardEvent &left, const HeardEvent &right) { return left.startMs < right.startMs; });
    return sounds;
}

double HeardLog::loudestBetween(qint64 fromMs, qint64 toMs) const
{
    double loudest = lowestDbfs;
    for (const HeardEvent &event : soundsBetween(fromMs, toMs))
        loudest = std::max(loudest, event.levelDbfs);
    for (const Level &level : levels_) {
        if (level.atMs >= fromMs + levelSpanMs && level.atMs <= toMs + levelSpanMs)
            loudest = std::max(loudest, level.levelDbfs);
    }
    for (const MeteredMoment &moment : momentsBetween(fromMs, toMs))
        loudest = std::max(loudest, moment.rmsDbfs);
    const std::optional<HeardPlace> place = bestPlaceBetween(fromMs, toMs);
    return place ? std::max(loudest, place->levelDbfs) : loudest;
}

// The frames of a stretch that lies partly outside are spread over it evenly.
bool HeardLog::hasListenedBetween(qint64 fromMs, qint64 toMs) const
{
    double frameCount = 0;
    for (qsizetype index = 1; index < arrivals_.size(); ++index) {
        const Arrival &before = arrivals_.at(index - 1);
        const Arrival &arrival = arrivals_.at(index);
        const qint64 sharedMs = std::min(arrival.atMs, toMs) - std::max(before.atMs, fromMs);
        if (sharedMs <= 0)
            continue;
        if (arrival.droppedFrameCount > before.droppedFrameCount)
            return false;
        frameCount += arrival.frameCount * static_cast<double>(sharedMs) / static_cast<double>(arrival.atMs - before.atMs);
    }
    return frameCount >= wantedShare * framesPerMs * static_cast<double>(toMs - fromMs);
}

} // namespace host
