// SPDX-License-Identifier: Apache-2.0
#include "audio/audio_player.h"

#include <algorithm>
#include <cstdint>
#include <exception>
#include <memory>
#include <utility>

namespace ostra::audio {

namespace {

std::unique_ptr<std::uint8_t[]> copyOfSamples(const AudioRecording &recording)
{
    auto copy = std::make_unique_for_overwrite<std::uint8_t[]>(recording.byteCount);
    std::copy_n(recording.samples.get(), recording.byteCount, copy.get());
    return copy;
}

} // namespace

AudioPlayer::AudioPlayer(StopFlag stopFlag) : stopFlag_(std::move(stopFlag))
{
    format_.callback = &TransferBuffer::playback;
    format_.context = &transfer_;
}

void AudioPlayer::play(const std::string &deviceName, const AudioRecording &recording)
{
    takeFormat(recording);
    const TransferLease lease(transfer_, copyOfSamples(recording), recording.byteCount);
    openDevice(deviceName);
    if (recording.seconds * format_.bytesPerSecond() > recording.byteCount)
        throw std::exception();
    runStream(device_, *stopFlag_);
}

void AudioPlayer::takeFormat(const AudioRecording &recording)
{
    format_.frequency = recording.frequency;
    format_.format = recording.format;
    format_.channels = recording.channels;
    format_.framesPerCallback = recording.framesPerCallback;
}

void AudioPlayer::openDevice(const std::string &deviceName)
{
    // Before the opening: only the first of two openings of a device is told when the device vanishes.
    device_.release();
    device_ = openStream(deviceName, StreamDirection::playback, format_).device;
}

} // namespace ostra::audio
