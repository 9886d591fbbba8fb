// SPDX-License-Identifier: Apache-2.0
#include "host/listener/capture.h"

#include "host/core/capture_source.h"

#include <SDL.h>

#include <cstdint>

namespace host {

namespace {

constexpr std::uint16_t deviceBufferFrameCount = 1024;

// Frames arrive as bytes; the sound library aligns its buffers for every sample type.
std::span<const float> samplesOf(const std::uint8_t *bytes, int byteCount)
{
    return {static_cast<const float *>(static_cast<const void *>(bytes)), static_cast<std::size_t>(byteCount) / sizeof(float)};
}

int channelCountOf(const QString &source)
{
    const int count = SDL_GetNumAudioDevices(SDL_TRUE);
    for (int index = 0; index < count; ++index) {
        const char *name = SDL_GetAudioDeviceName(index, SDL_TRUE);
        SDL_AudioSpec own{};
        if (name != nullptr && source == QString::fromUtf8(name) && SDL_GetAudioDeviceSpec(index, SDL_TRUE, &own) == 0)
            return own.channels;
    }
    return 0;
}

} // namespace

void Capture::receive(void *ring, std::uint8_t *bytes, int byteCount) noexcept
{
    static_cast<BlockRing *>(ring)->write(samplesOf(bytes, byteCount), std::chrono::steady_clock::now());
}

bool Capture::startLibrary()
{
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1"); // its handlers would turn a polite kill into an event that nobody reads
    SDL_setenv("SDL_AUDIO_INCLUDE_MONITORS", "1", 1);
    SDL_setenv("SDL_AUDIODRIVER", captureDriverName(), 1);
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) == 0)
        return true;
    errorText_ = QString::fromUtf8(SDL_GetError());
    return false;
}

QStringList Capture::sources() const
{
    QStringList names;
    const int count = SDL_GetNumAudioDevices(SDL_TRUE);
    for (int index = 0; index < count; ++index) {
        if (const char *name = SDL_GetAudioDeviceName(index, SDL_TRUE))
            names.append(QString::fromUtf8(name));
    }
    for (const QString &device : LoopbackCapture::devices())
        names.append(loopbackPrefix + device);
    return names;
}

bool Capture::openLoopback(const QString &device)
{
    const bool isOpen = loopback_.open(device, ring_);
    errorText_ = loopback_.errorText();
    sourceChannelCount_ = loopback_.channelCount();
    return isOpen;
}

bool Capture::open(const QString &source)
{
    if (const QString device = loopbackDevice(source); !device.isEmpty())
        return openLoopback(device);
    SDL_AudioSpec wanted{};
    wanted.freq = static_cast<int>(captureRate);
    wanted.format = AUDIO_F32SYS;
    wanted.channels = static_cast<std::uint8_t>(captureChannelCount);
    wanted.samples = deviceBufferFrameCount;
    wanted.callback = &Capture::receive;
    wanted.userdata = &ring_;
    device_ = SDL_OpenAudioDevice(source.toUtf8().constData(), SDL_TRUE, &wanted, nullptr, 0);
    if (device_ == 0) {
        errorText_ = QString::fromUtf8(SDL_GetError());
        return false;
    }
    sourceChannelCount_ = channelCountOf(source);
    SDL_PauseAudioDevice(device_, SDL_FALSE);
    return true;
}

bool Capture::isLost() const
{
    return device_ == 0 ? loopback_.isLost() : SDL_GetAudioDeviceStatus(device_) == SDL_AUDIO_STOPPED;
}

} // namespace host
