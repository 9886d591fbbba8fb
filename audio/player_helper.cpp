// SPDX-License-Identifier: Apache-2.0
#include "audio/player_helper.h"

#include "audio/worker_status.h"

#include <utility>

namespace ostra::audio {

PlayerHelper::PlayerHelper(std::shared_ptr<AudioRecording> recording, StopFlag stopFlag, QString deviceName)
    : stopFlag_(std::move(stopFlag)), recording_(std::move(recording)), player_(stopFlag_), deviceName_(std::move(deviceName))
{}

PlayerHelper::~PlayerHelper() = default;

void PlayerHelper::PlayAudio()
{
    const int status = playRecording();
    try {
        emit SendResultStatus(status); // a receiver may have deleted this object when it returns
    } catch (...) {                    // a slot that throws ends the program
    }
}

void PlayerHelper::StopPlayAudio() { stopFlag_->exchange(false); }

int PlayerHelper::playRecording() noexcept
{
    return statusOf([this] {
        threadUse_.enter();
        const std::shared_ptr<AudioRecording> recording = recording_;
        if (!recording)
            return worker_status::failed;
        player_.play(deviceName_.toStdString(), *recording);
        return worker_status::finished;
    });
}

} // namespace ostra::audio
