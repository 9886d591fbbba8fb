// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <SDL.h>

#include <utility>

namespace ostra::audio {

/// Owns one open device of the sound library, or none (id 0). Letting go pauses the device, which waits until its callback
/// has returned and keeps it from being called again, and then closes it; that takes about two buffers' time. One thread at a
/// time.
class AudioDeviceHandle {
public:
    AudioDeviceHandle() = default;
    explicit AudioDeviceHandle(SDL_AudioDeviceID id) noexcept : id_(id) {}
    ~AudioDeviceHandle() { release(); }
    AudioDeviceHandle(AudioDeviceHandle &&other) noexcept : id_(std::exchange(other.id_, 0)) {}
    AudioDeviceHandle &operator=(AudioDeviceHandle &&other) noexcept;
    AudioDeviceHandle(const AudioDeviceHandle &) = delete;
    AudioDeviceHandle &operator=(const AudioDeviceHandle &) = delete;

    /// Pauses and closes; nothing when there is no device.
    void release() noexcept;

    /// Whether there is a device, and the sound library has not stopped it because it vanished.
    bool isPresent() const noexcept;
    /// Whether the device is running: neither paused nor stopped.
    bool isPlaying() const noexcept;

    /// Starts or stops the calls of the callback; nothing when there is no device.
    void unpause() const noexcept;
    void pause() const noexcept;

    explicit operator bool() const noexcept { return id_ != 0; }

private:
    SDL_AudioDeviceID id_ = 0;
};

} // namespace ostra::audio
