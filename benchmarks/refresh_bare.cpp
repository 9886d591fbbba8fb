// SPDX-License-Identifier: Apache-2.0
// Lists the output devices as a program without our module would: starts the sound library, opens and closes each device once
// with the format of the digits' clips. Prints the seconds that it took.
#include "benchmarks/loaded_library.h"
#include "benchmarks/pairs.h"

#include <SDL.h>

#include <chrono>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

namespace {

// Taken from the library that was loaded meanwhile: the loading counts, as it does for the module, which brings it along.
struct Sound {
    explicit Sound(const bench::LoadedLibrary &library)
        : init(library.function<decltype(&SDL_InitSubSystem)>("SDL_InitSubSystem")),
          setEnvironment(library.function<decltype(&SDL_setenv)>("SDL_setenv")),
          count(library.function<decltype(&SDL_GetNumAudioDevices)>("SDL_GetNumAudioDevices")),
          name(library.function<decltype(&SDL_GetAudioDeviceName)>("SDL_GetAudioDeviceName")),
          open(library.function<decltype(&SDL_OpenAudioDevice)>("SDL_OpenAudioDevice")),
          close(library.function<decltype(&SDL_CloseAudioDevice)>("SDL_CloseAudioDevice"))
    {}

    decltype(&SDL_InitSubSystem) init;
    decltype(&SDL_setenv) setEnvironment;
    decltype(&SDL_GetNumAudioDevices) count;
    decltype(&SDL_GetAudioDeviceName) name;
    decltype(&SDL_OpenAudioDevice) open;
    decltype(&SDL_CloseAudioDevice) close;
};

int openAll(const char *libraryPath, const char *driver, std::chrono::milliseconds held)
{
    const bench::LoadedLibrary library(libraryPath);
    const Sound sound(library);
    sound.setEnvironment("SDL_AUDIODRIVER", driver, 1);
    sound.init(SDL_INIT_AUDIO);
    SDL_AudioSpec spec{};
    spec.freq = 48000;
    spec.format = AUDIO_S16LSB;
    spec.channels = 2;
    spec.samples = 4096;
    const int count = sound.count(0);
    for (int index = 0; index < count; ++index) {
        const std::string name = sound.name(index, 0);
        const SDL_AudioDeviceID device = sound.open(name.c_str(), 0, &spec, nullptr, 0);
        std::this_thread::sleep_for(held);
        sound.close(device);
    }
    return count;
}

} // namespace

/// refresh_bare SDL_LIBRARY DRIVER MILLISECONDS: how long each device stays open.
int main(int argumentCount, char **arguments)
{
    if (argumentCount != 4)
        return 2;
    const std::chrono::milliseconds held(std::stoi(arguments[3]));
    int count = 0;
    const double seconds = bench::secondsOf([&] { count = openAll(arguments[1], arguments[2], held); });
    std::printf("%.6f %d\n", seconds, count);
    return 0;
}
