// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "benchmarks/loaded_library.h"

#include <SDL.h>

#include <chrono>
#include <string>
#include <thread>

namespace bench {

/// That of the digits' clips.
inline SDL_AudioSpec digitFormat()
{
    SDL_AudioSpec spec{};
    spec.freq = 48000;
    spec.format = AUDIO_S16LSB;
    spec.channels = 2;
    spec.samples = 4096;
    return spec;
}

/// Lists the output devices as a program without our module would. The sound library is loaded here, not linked: its loading
/// counts, as it does for the module, which brings it along.
class BareListing {
public:
    /// Loads the library and starts its sound. `driver` is one of its names of drivers.
    BareListing(const char *libraryPath, const char *driver) : library_(libraryPath)
    {
        library_.function<decltype(&SDL_setenv)>("SDL_setenv")("SDL_AUDIODRIVER", driver, 1);
        library_.function<decltype(&SDL_InitSubSystem)>("SDL_InitSubSystem")(SDL_INIT_AUDIO);
    }

    /// Opens each device once with the format of the digits' clips, holds it so long, and closes it. Returns their number.
    int openAll(std::chrono::microseconds held) const
    {
        const SDL_AudioSpec spec = digitFormat();
        const int count = count_(0);
        for (int index = 0; index < count; ++index) {
            const std::string name = name_(index, 0);
            const SDL_AudioDeviceID device = open_(name.c_str(), 0, &spec, nullptr, 0);
            if (held.count() > 0)
                std::this_thread::sleep_for(held);
            close_(device);
        }
        return count;
    }

private:
    LoadedLibrary library_;
    decltype(&SDL_GetNumAudioDevices) count_ = library_.function<decltype(&SDL_GetNumAudioDevices)>("SDL_GetNumAudioDevices");
    decltype(&SDL_GetAudioDeviceName) name_ = library_.function<decltype(&SDL_GetAudioDeviceName)>("SDL_GetAudioDeviceName");
    decltype(&SDL_OpenAudioDevice) open_ = library_.function<decltype(&SDL_OpenAudioDevice)>("SDL_OpenAudioDevice");
    decltype(&SDL_CloseAudioDevice) close_ = library_.function<decltype(&SDL_CloseAudioDevice)>("SDL_CloseAudioDevice");
};

} // namespace bench
