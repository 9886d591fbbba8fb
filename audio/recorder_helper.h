// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/audio_recorder.h"
#include "audio/audio_recording.h"
#include "audio/stop_flag.h"
#include "audio/worker_thread_use.h"

#include <QObject>
#include <QString>

#include <cstdint>
#include <memory>

namespace ostra::audio {

/// Records on a thread of its own: make it, move it to the thread, let the thread's `started()` call `RecordAudio()`, and
/// delete it there (`SendResultStatus(int)` to `deleteLater()`), never from another thread: its end closes the device. It
/// shares everything that it touches, so it may outlive whoever made it.
class RecorderHelper final : public QObject {
    Q_OBJECT

public:
    /// `slot` (never null) receives the recording. `deviceName` is a name from `listAudioDevices`. `seconds` sizes the memory;
    /// it does not end the recording, the stop flag does.
    RecorderHelper(std::shared_ptr<RecordingSlot> slot, StopFlag stopFlag, QString deviceName, std::uint16_t seconds);
    ~RecorderHelper() override;

signals:
    /// Once for every job, a value of `worker_status`, as the last thing that the job does: with status 0 the slot holds the
    /// new recording, otherwise what it held before. A receiver may delete the worker.
    void SendResultStatus(int status);

public slots:
    /// Records; blocks until the stop flag is cleared or the device stops. Throws nothing.
    void RecordAudio();
    /// Clears the stop flag. Call it directly, from any thread: a queued call would wait until the job has ended.
    void StopRecordAudio();

private:
    int recordIntoSlot() noexcept;

    StopFlag stopFlag_;
    std::shared_ptr<RecordingSlot> slot_;
    WorkerThreadUse threadUse_; // before the engine, which closes its device within it
    AudioRecorder recorder_;
    QString deviceName_;
    std::uint16_t seconds_;
};

} // namespace ostra::audio
