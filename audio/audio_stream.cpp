// SPDX-License-Identifier: Apache-2.0
#include "audio/audio_stream.h"

#include "audio/sdl_api.h"

#include <ios>

namespace ostra::audio {

namespace {

constexpr Uint32 checkMilliseconds = 500;

SDL_AudioSpec wish(const StreamFormat &format)
{
    SDL_AudioSpec spec{};
    spec.freq = format.frequency;
    spec.format = format.format;
    spec.channels = format.channels;
    spec.samples = format.framesPerCallback;
    spec.callback = format.callback;
    spec.userdata = format.context;
    return spec;
}

/// Whatever ends the scope, no callback runs afterwards.
class RunningPeriod {
public:
    explicit RunningPeriod(const AudioDeviceHandle &device) : device_(device) { device_.unpause(); }
    ~RunningPeriod() { device_.pause(); }
    RunningPeriod(const RunningPeriod &) = delete;
    RunningPeriod &operator=(const RunningPeriod &) = delete;

private:
    const AudioDeviceHandle &device_;
};

} // namespace

OpenedStream openStream(const std::string &deviceName, StreamDirection direction, StreamFormat &format)
{
    const SDL_AudioSpec desired = wish(format);
    SDL_AudioSpec obtained{};
    OpenedStream result;
    result.device =
        AudioDeviceHandle(sdl().openDevice(deviceName.c_str(), static_cast<int>(direction), &desired, &obtained, 0));
    if (!result.device)
        return result;
    format.frequency = static_cast<std::uint16_t>(obtained.freq);
    format.format = obtained.format;
    format.channels = obtained.channels;
    format.framesPerCallback = obtained.samples;
    result.silence = obtained.silence;
    return result;
}

void runStream(const AudioDeviceHandle &device, const std::atomic<bool> &mayGoOn)
{
    {
        const RunningPeriod period(device);
        while (device.isPresent() && device.isPlaying() && mayGoOn)
            sdl().delay(checkMilliseconds);
    }
    if (!device.isPresent())
        throw std::ios_base::failure("Device was disconnected", std::io_errc::stream);
}

} // namespace ostra::audio
