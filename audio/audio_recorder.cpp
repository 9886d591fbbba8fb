// SPDX-License-Identifier: Apache-2.0
#include "audio/audio_recorder.h"

#include <algorithm>
#include <utility>

namespace ostra::audio {

AudioRecorder::AudioRecorder(StopFlag stopFlag) : stopFlag_(std::move(stopFlag))
{
    format_.callback = &TransferBuffer::capture;
    format_.context = &transfer_;
}

std::unique_ptr<AudioRecording> AudioRecorder::record(const std::string &deviceName, std::uint16_t seconds)
{
    const auto secondsHeld = static_cast<std::uint16_t>(seconds + 1);
    const std::uint32_t byteCount = secondsHeld * format_.bytesPerSecond();
    const TransferLease lease(transfer_, std::make_unique<std::uint8_t[]>(byteCount), byteCount);
    if (!device_)
        openDevice(deviceName);
    runStream(device_, *stopFlag_);
    return copyOfTransfer(seconds);
}

void AudioRecorder::openDevice(const std::string &deviceName)
{
    OpenedStream opened = openStream(deviceName, StreamDirection::capture, format_);
    device_ = std::move(opened.device);
    std::fill_n(transfer_.data(), transfer_.byteCount(), opened.silence);
}

std::unique_ptr<AudioRecording> AudioRecorder::copyOfTransfer(std::uint16_t seconds)
{
    auto recording = std::make_unique<AudioRecording>();
    recording->byteCount = transfer_.byteCount();
    recording->samples = std::make_unique_for_overwrite<std::uint8_t[]>(recording->byteCount);
    std::copy_n(transfer_.data(), recording->byteCount, recording->samples.get());
    recording->seconds = seconds;
    recording->frequency = format_.frequency;
    recording->format = format_.format;
    recording->channels = format_.channels;
    recording->framesPerCallback = format_.framesPerCallback;
    return recording;
}

} // namespace ostra::audio
