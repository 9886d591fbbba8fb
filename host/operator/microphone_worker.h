// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"
#include "host/operator/dialog_exit.h"
#include "host/operator/heard_log.h"
#include "host/operator/speaker_link.h"
#include "host/operator/volume_watch.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <memory>
#include <optional>

namespace host {

class WindowPhotographer;

/// What a microphone run speaks, and where.
struct Speech {
    QString microphone; ///< as the dialog names it; empty for the one that it has chosen
    QString device;     ///< output that the microphone hears
    QString clip;       ///< file
    QString source;     ///< capture source that listens to the playback
    QString playedOn;   ///< output on which the dialog plays the recording: the tested device
};

/// Asks for one repetition where something else was played back. Works one microphone dialog: chooses the microphone, has a
/// sentence spoken while the dialog records, listens while the dialog plays the recording back, and goes on when it is over.
/// Judges only what is heard during the playback: the listener heard the spoken sentence as well. Sees only what a person sees.
class MicrophoneWorker : public QObject {
    Q_OBJECT

public:
    MicrophoneWorker(QWidget *dialog, const HeardLog &log, WindowPhotographer &photographer, Speech speech);
    ~MicrophoneWorker() override;

    /// Does what is due. \param isListenerLost closes the dialog instead, unless it ends by itself
    void advance(bool isListenerLost);

    bool works(const QWidget *dialog) const { return dialog_ == dialog; }
    /// What was heard; nothing before the playback is over. Moments on the steady clock.
    const std::optional<HeardRecording> &heard() const { return heard_; }
    /// Where the playback lies on the steady clock; 0 where there was none.
    qint64 playBeganMs() const { return playBeganMs_; }
    qint64 playEndedMs() const { return playEndedMs_; }
    /// Why it gave up; empty when it did not.
    const QString &reason() const { return exit_.reason(); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Step { choosing, preparing, pressing, recording, playing, repeating, judging, leaving };

    void enter(Step step);
    qint64 inStepMs() const { return steadyNowMs() - stepStartMs_; }
    bool press(const char *name);
    void watchPage(const char *name);

    void work();
    void lookAtVolumes();
    void choose();
    bool chooseMicrophone();
    void prepare();
    void pressRecord();
    void speak();
    void play();
    void judge();
    void listenAgain();
    void leave();

    HeardRecording measured() const;
    QString whyNotMissing(const HeardRecording &heard) const;
    bool wasSpeechHeard() const;
    void measureLevels(HeardRecording &heard) const;
    std::optional<double> latencyTo(qint64 startMs) const;

    QPointer<QWidget> dialog_;
    DialogExit exit_;
    const HeardLog &log_;
    WindowPhotographer &photographer_;
    Speech speech_;
    std::unique_ptr<SpeakerLink> speaker_;
    std::optional<VolumeWatch> volumes_; ///< from the press on the record button on: of each endpoint that the sentence passes

    Step step_ = Step::choosing;
    qint64 stepStartMs_ = 0;
    qint64 pressedMs_ = 0;
    qint64 recordPressedMs_ = 0;
    bool hasSpoken_ = false;
    bool hasRepeated_ = false;
    qint64 recordEndedMs_ = 0;
    qint64 playBeganMs_ = 0;
    qint64 playEndedMs_ = 0;
    std::optional<HeardRecording> heard_;
};

} // namespace host
