// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/player_helper.h"
#include "audio/recorder_helper.h"

#include <QObject>
#include <QThread>
#include <QTimer>

#include <chrono>
#include <optional>

/// One worker at work on a thread of its own, wired as the microphone test's pages wire it.
template <typename Worker>
class SoundJob {
public:
    SoundJob(Worker *worker, void (Worker::*job)(), ostra::audio::StopFlag stopFlag) : stopFlag_(std::move(stopFlag))
    {
        worker->moveToThread(&thread_);
        QObject::connect(&thread_, &QThread::started, worker, job);
        QObject::connect(worker, &Worker::SendResultStatus, &page_, [this](int status) { status_ = status; });
        QObject::connect(worker, &Worker::SendResultStatus, &thread_, &QThread::quit);
        QObject::connect(worker, &Worker::SendResultStatus, worker, &QObject::deleteLater);
        thread_.start();
    }
    ~SoundJob()
    {
        stop();
        thread_.quit();
        thread_.wait(); // the test's own time limit ends it otherwise
    }
    SoundJob(const SoundJob &) = delete;
    SoundJob &operator=(const SoundJob &) = delete;

    void stop() { stopFlag_->exchange(false); }
    void stopAfter(std::chrono::milliseconds time)
    {
        QTimer::singleShot(time, &page_, [this] { stop(); });
    }

    /// What the worker has reported so far.
    std::optional<int> status() const { return status_; }
    /// Whether the worker is gone, with its device closed.
    bool isOver() const { return thread_.isFinished(); }

private:
    ostra::audio::StopFlag stopFlag_;
    QObject page_;
    QThread thread_;
    std::optional<int> status_;
};

class PlayJob : public SoundJob<ostra::audio::PlayerHelper> {
public:
    PlayJob(std::shared_ptr<ostra::audio::AudioRecording> recording, const QString &device,
            const ostra::audio::StopFlag &stopFlag = ostra::audio::makeStopFlag())
        : SoundJob(new ostra::audio::PlayerHelper(std::move(recording), stopFlag, device),
                   &ostra::audio::PlayerHelper::PlayAudio, stopFlag)
    {}
};

class RecordJob : public SoundJob<ostra::audio::RecorderHelper> {
public:
    RecordJob(const std::shared_ptr<ostra::audio::RecordingSlot> &slot, const QString &device, std::uint16_t seconds,
              const ostra::audio::StopFlag &stopFlag = ostra::audio::makeStopFlag())
        : SoundJob(new ostra::audio::RecorderHelper(slot, stopFlag, device, seconds),
                   &ostra::audio::RecorderHelper::RecordAudio, stopFlag)
    {}
};
