// SPDX-License-Identifier: Apache-2.0
#include "audio/recorder_helper.h"

#include "audio/worker_status.h"

#include <utility>

namespace ostra::audio {

RecorderHelper::RecorderHelper(std::shared_ptr<RecordingSlot> slot, StopFlag stopFlag, QString deviceName,
                               std::uint16_t seconds)
    : stopFlag_(std::move(stopFlag)), slot_(std::move(slot)), recorder_(stopFlag_), deviceName_(std::move(deviceName)),
      seconds_(seconds)
{}

RecorderHelper::~RecorderHelper() = default;

void RecorderHelper::RecordAudio()
{
    const int status = recordIntoSlot();
    try {
        emit SendResultStatus(status); // a receiver may have deleted this object when it returns
    } catch (...) {                    // a slot that throws ends the program
    }
}

void RecorderHelper::StopRecordAudio() { stopFlag_->exchange(false); }

int RecorderHelper::recordIntoSlot() noexcept
{
    return statusOf([this] {
        threadUse_.enter();
        std::shared_ptr<AudioRecording> recording = recorder_.record(deviceName_.toStdString(), seconds_);
        if (!recording)
            return worker_status::failed;
        slot_->store(std::move(recording));
        return worker_status::finished;
    });
}

} // namespace ostra::audio
