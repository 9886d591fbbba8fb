// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/digit_measurement.h"

#include <QList>

#include <memory>
#include <optional>

namespace host {

/// Milliseconds of the machine's steady clock, which the listener's process shares.
qint64 steadyNowMs();

/// One thing that the listener told.
struct HeardEvent {
    qint64 startMs = 0;
    std::optional<int> digit; ///< nothing for a sound that is no known digit
    double score = 0;
    double margin = 0;
    double levelDbfs = 0;
    bool isClipped = false;
    std::shared_ptr<const DigitMeasurement> measured; ///< null when nothing was measured; shared, as events are sorted
};

/// A place that is like the clip that the listener looks for.
struct HeardPlace {
    qint64 startMs = 0;
    double score = 0;
    bool isFound = false;
    double levelDbfs = -120;
    bool isClipped = false;
};

/// A tenth of a second of the capture.
struct MeteredMoment {
    qint64 endMs = 0;
    double peakDbfs = -120;
    double rmsDbfs = -120; ///< over both channels
    double leftDbfs = -120;
    double rightDbfs = -120;
    double differenceDbfs = -120; ///< RMS of left minus right
    QList<double> wave;           ///< lowest and highest sample in turn
};

/// What the listener has told since its start.
class HeardLog {
public:
    /// At or above it something was heard.
    static constexpr double audibleDbfs = -50.0;

    void addSound(const HeardEvent &event);
    void addPlace(const HeardPlace &place);
    void addMoment(const MeteredMoment &moment);
    /// \param levelDbfs the loudest of the second before `atMs`
    void addLevel(qint64 atMs, double levelDbfs);

    /// \param atMs the moment of the level; the first one tells where listening began
    /// \param frameCount frames that arrived since the moment before
    /// \param droppedFrameCount frames that were lost since the beginning
    void addArrival(qint64 atMs, double frameCount, double droppedFrameCount)
    {
        arrivals_.append({atMs, frameCount, droppedFrameCount});
    }

    /// Digits and other sounds that began between two moments, by their beginning.
    QList<HeardEvent> soundsBetween(qint64 fromMs, qint64 toMs) const;
    /// The place most like the clip of those that begin between two moments; a found one goes before all others.
    std::optional<HeardPlace> bestPlaceBetween(qint64 fromMs, qint64 toMs) const;
    QList<MeteredMoment> momentsBetween(qint64 fromMs, qint64 toMs) const;
    double loudestBetween(qint64 fromMs, qint64 toMs) const;
    /// Whether most of the sound between two moments has arrived, and nothing of it was dropped. A capture that delivers
    /// nothing sounds like a silent one.
    bool hasListenedBetween(qint64 fromMs, qint64 toMs) const;
    /// Everything up to this moment has arrived here, save what a digit needs to be recognised.
    qint64 listenedUpToMs() const { return levels_.isEmpty() ? 0 : levels_.last().atMs; }

private:
    struct Level {
        qint64 atMs;
        double levelDbfs;
    };

    struct Arrival {
        qint64 atMs;
        double frameCount;
        double droppedFrameCount;
    };

    QList<Arrival> arrivals_;
    QList<HeardEvent> sounds_;
    QList<HeardPlace> places_;
    QList<MeteredMoment> moments_;
    QList<Level> levels_;
};

} // namespace host
