// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/audio_player.h"
#include "audio/audio_recording.h"
#include "audio/stop_flag.h"
#include "audio/worker_thread_use.h"

#include <QObject>
#include <QString>

#include <memory>

namespace ostra::audio {

/// Plays on a thread of its own: make it, move it to the thread, let the thread's `started()` call `PlayAudio()`, and delete
/// it there (`SendResultStatus(int)` to `deleteLater()`), never from another thread: its end closes the device. It shares
/// everything that it touches, so it may outlive whoever made it.
class PlayerHelper final : public QObject {
    Q_OBJECT

public:
    /// With no `recording` the job fails. `deviceName` is a name from `listAudioDevices`.
    PlayerHelper(std::shared_ptr<AudioRecording> recording, StopFlag stopFlag, QString deviceName);
    ~PlayerHelper() override;

signals:
    /// Once for every job, a value of `worker_status`, as the last thing that the job does. A receiver may delete the worker.
    void SendResultStatus(int status);

public slots:
    /// Plays; blocks until the stop flag is cleared or the device stops, not merely to the recording's end. Throws nothing.
    void PlayAudio();
    /// Clears the stop flag. Call it directly, from any thread: a queued call would wait until the job has ended.
    void StopPlayAudio();

private:
    int playRecording() noexcept;

    StopFlag stopFlag_;
    std::shared_ptr<AudioRecording> recording_;
    WorkerThreadUse threadUse_; // before the engine, which closes its device within it
    AudioPlayer player_;
    QString deviceName_;
};

} // namespace ostra::audio
