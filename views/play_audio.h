// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/audio_recording.h"
#include "views/timed_job.h"

#include <QString>
#include <QWidget>

#include <memory>

namespace Ui {
class PlayAudio;
}

namespace ostra {

/// Last page of the microphone test: plays the recording on the output device under test, by itself when the page comes up
/// and again whenever the user likes. GUI thread only.
class PlayAudio : public QWidget {
    Q_OBJECT

public:
    /// `recording` (never null) holds what is played; `deviceName` is the output device.
    PlayAudio(std::shared_ptr<audio::RecordingSlot> recording, QString deviceName, QWidget *parent = nullptr);
    /// Stops a playback that still runs.
    ~PlayAudio() override;

    const QString &deviceName() const noexcept { return deviceName_; }
    /// Ends a playback as `TimedJob` does; no signal follows.
    TimedJob &job() noexcept { return job_; }

signals:
    void NextWidget();
    void CancelTest();
    void AbortTest();
    void DisconnectedDevice();

public slots:
    void set_result_status(int status);
    void OnBtnCancelClicked();
    void OnBtnNextClicked();
    void OnBtnPlayClicked();
    void OnTimerTick();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void offerToGoOn();
    void enableButtons(bool isEnabled);
    int limitSeconds() const;

    std::unique_ptr<Ui::PlayAudio> ui_;
    std::shared_ptr<audio::RecordingSlot> recording_;
    QString deviceName_;
    TimedJob job_;
};

} // namespace ostra
