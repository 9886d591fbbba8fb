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

/// What the listener has told since its start.
class HeardLog {
public:
    /// At or above it something was heard.
    static constexpr double audibleDbfs = -50.0;

    void addSound(const HeardEvent &event);
    /// \param levelDbfs the loudest of the second before `atMs`
    void addLevel(qint64 atMs, double levelDbfs);

    /// Digits and other sounds that began between two moments, by their beginning.
    QList<HeardEvent> soundsBetween(qint64 fromMs, qint64 toMs) const;
    double loudestBetween(qint64 fromMs, qint64 toMs) const;
    /// Everything up to this moment has arrived here, save what a digit needs to be recognised.
    qint64 listenedUpToMs() const { return levels_.isEmpty() ? 0 : levels_.last().atMs; }

private:
    struct Level {
        qint64 atMs;
        double levelDbfs;
    };

    QList<HeardEvent> sounds_;
    QList<Level> levels_;
};

} // namespace host
