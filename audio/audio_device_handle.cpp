// SPDX-License-Identifier: Apache-2.0
#include "audio/audio_device_handle.h"

#include "audio/sdl_api.h"

namespace ostra::audio {

AudioDeviceHandle &AudioDeviceHandle::operator=(AudioDeviceHandle &&other) noexcept
{
    if (this != &other) {
        release();
        id_ = std::exchange(other.id_, 0);
    }
    return *this;
}

void AudioDeviceHandle::release() noexcept
{
    if (id_ == 0)
        return;
    pause();
    sdl().closeDevice(std::exchange(id_, 0));
}

bool AudioDeviceHandle::isPresent() const noexcept { return id_ != 0 && sdl().deviceStatus(id_) != SDL_AUDIO_STOPPED; }

bool AudioDeviceHandle::isPlaying() const noexcept { return id_ != 0 && sdl().deviceStatus(id_) == SDL_AUDIO_PLAYING; }

void AudioDeviceHandle::unpause() const noexcept
{
    if (id_ != 0)
        sdl().pauseDevice(id_, 0);
}

void AudioDeviceHandle::pause() const noexcept
{
    if (id_ != 0)
        sdl().pauseDevice(id_, 1);
}

} // namespace ostra::audio
