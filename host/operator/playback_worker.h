// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"
#include "host/operator/dialog_exit.h"
#include "host/operator/heard_log.h"
#include "host/operator/volume_watch.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

namespace host {

class WindowPhotographer;

/// Works one playback dialog: waits until its three digits have been played, types what was heard, asks for one repetition
/// where that was not enough, and says so where nothing was heard at all. Sees only what a person sees: which buttons are
/// enabled, which texts are shown.
class PlaybackWorker : public QObject {
    Q_OBJECT

public:
    /// \param mistypedSequences that many sequences get one wrong digit
    /// \param listenFromMs what began before does not count
    /// \param endpoints names of the endpoints that must be at full volume while it plays
    PlaybackWorker(QWidget *dialog, const HeardLog &log, WindowPhotographer &photographer, int mistypedSequences,
                   qint64 listenFromMs, const QStringList &endpoints);

    /// Does what is due. \param isListenerLost closes the dialog instead, unless it ends by itself
    void advance(bool isListenerLost);

    bool works(const QWidget *dialog) const { return dialog_ == dialog; }
    /// Of a dialog that ended in the middle of a sequence: what was heard of it until now goes into the rows.
    void noteUnfinishedPlay();
    /// Rows of the sequences so far; moments on the steady clock.
    const QList<HeardDigit> &digits() const { return rows_; }
    /// Why it gave up; empty when it did not.
    const QString &reason() const { return exit_.reason(); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Step { waiting, playing, deciding, typing, answered };

    void enter(Step step);
    qint64 inStepMs() const { return steadyNowMs() - stepStartMs_; }
    QWidget *find(const char *name) const;
    bool isShown(const char *name) const;
    bool isRepeatEnabled() const;
    bool isTyped(int digit) const;

    void beginSecondSequence();
    void wait();
    void decide();
    void listenAgain();
    void giveUp();
    QString whyNotSilent() const;
    void type();
    void typeNext();

    QList<HeardEvent> digitsOfPlay() const;
    QList<HeardEvent> loudestOfPlay() const;
    QList<HeardDigit> rowsOfPlay() const;
    void noteRows(const QList<HeardDigit> &rows);
    void noteBetterRows();
    int digitToType(int position) const;
    double latencyOf(qint64 startMs) const;

    void noteMovie();
    void noteShown(const QObject *widget);

    struct Play {
        qint64 fromMs;
        qint64 toMs;
    };
    struct Child {
        qint64 bornMs;
        QPointer<QObject> object;
    };

    QPointer<QWidget> dialog_;
    DialogExit exit_;
    const HeardLog &log_;
    WindowPhotographer &photographer_;
    int mistypedSequences_;

    Step step_ = Step::waiting;
    qint64 stepStartMs_ = 0;
    int sequence_ = 1;
    qint64 listenFromMs_ = 0;
    qint64 secondShownMs_ = 0;
    qint64 playEndMs_ = 0;
    bool hasRepeated_ = false;
    QString source_; ///< what the listener captures
    VolumeWatch volumes_;
    QList<Play> plays_; ///< those that are over, of both sequences
    QList<int> answer_;
    int typedCount_ = 0; ///< digits whose keys were pressed
    QList<HeardDigit> rows_;
    Child newestChild_{};
    QList<qint64> movieStarts_; ///< moments at which the dialog said that it plays
};

} // namespace host
