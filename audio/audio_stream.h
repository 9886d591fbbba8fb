// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/audio_device_handle.h"

#include <SDL.h>

#include <atomic>
#include <cstdint>
#include <string>

namespace ostra::audio {

/// What an engine asks the sound library for, and afterwards what it got.
struct StreamFormat {
    std::uint16_t frequency = 44100;        ///< frames per second, Hz; higher rates lose their upper bits
    std::uint16_t format = AUDIO_F32LSB;    ///< an `SDL_AudioFormat` code
    std::uint8_t channels = 2;              ///< samples of a frame
    std::uint16_t framesPerCallback = 4096; ///< frames that the sound library moves at a time
    SDL_AudioCallback callback = nullptr;   ///< on the sound library's thread
    void *context = nullptr;                ///< what the callback is given; must outlive the device

    std::uint32_t bytesPerFrame() const noexcept { return SDL_AUDIO_BITSIZE(format) / 8U * channels; }
    /// Modulo 2^32, as every byte count here.
    std::uint32_t bytesPerSecond() const noexcept { return frequency * bytesPerFrame(); }
};

enum class StreamDirection { playback = 0, capture = 1 };

struct OpenedStream {
    AudioDeviceHandle device; ///< paused; holds none when the device could not be opened
    Uint8 silence = 0;        ///< the byte that stands for silence in the format obtained
};

/// Opens the device of exactly this name (UTF-8), paused, and writes the format obtained back. Blocks for as long as the sound
/// server takes to answer.
OpenedStream openStream(const std::string &deviceName, StreamDirection direction, StreamFormat &format);

/// Lets the device run until it stops by itself or `mayGoOn` is cleared, looking every half second, and pauses it again before
/// it returns or throws. Throws std::ios_base::failure, "Device was disconnected", when the device is not there at the end,
/// which is also the case when it could never be opened.
void runStream(const AudioDeviceHandle &device, const std::atomic<bool> &mayGoOn);

} // namespace ostra::audio
