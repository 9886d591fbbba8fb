// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/audio_recording.h"
#include "views/timed_job.h"

#include <QString>
#include <QWidget>

#include <cstdint>
#include <memory>

namespace Ui {
class RecordAudio;
}

namespace ostra {

/// Second page of the microphone test: records through the chosen microphone for five seconds. GUI thread only.
class RecordAudio : public QWidget {
    Q_OBJECT

public:
    /// Seconds to record.
    static constexpr std::uint16_t recordLimit = 5;

    /// `recording` (never null) receives what is recorded.
    explicit RecordAudio(std::shared_ptr<audio::RecordingSlot> recording, QWidget *parent = nullptr);
    /// Stops a recording that still runs.
    ~RecordAudio() override;

    const QString &deviceName() const noexcept { return deviceName_; }
    /// Ends a recording as `TimedJob` does; no signal follows.
    TimedJob &job() noexcept { return job_; }

signals:
    void NextWidget();
    void CancelTest();
    void AbortTest();
    void DisconnectedDevice();

public slots:
    void set_device_name(QString deviceName);
    void set_result_status(int status);
    void OnBtnCancelClicked();
    void OnBtnRecordClicked();
    void OnTimerTick();

private:
    std::unique_ptr<Ui::RecordAudio> ui_;
    std::shared_ptr<audio::RecordingSlot> recording_;
    QString deviceName_;
    TimedJob job_;
};

} // namespace ostra
