// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/sound_figures.h"

#include "audio/audio_component_manager.h"
#include "audio/sdl_api.h"
#include "benchmarks/bare_listing.h"

#include <SDL.h>

#include <cstdio>
#include <string>

namespace bench {

namespace {

// One listing of all devices, the first of its process, in milliseconds a device.
struct Parts {
    double opening = 0;
    double held = 0; // from the end of the opening to the beginning of the closing
    double closing = 0;
    double whole = 0;
    int deviceCount = 0;
};

struct Watch {
    Parts sums;
    double opened = 0;
};

Watch &watch()
{
    static Watch current;
    return current;
}

double now()
{
    return 1e3 * static_cast<double>(SDL_GetPerformanceCounter()) / static_cast<double>(SDL_GetPerformanceFrequency());
}

SDL_AudioDeviceID SDLCALL openWatched(const char *name, int capture, const SDL_AudioSpec *wish, SDL_AudioSpec *got, int changes)
{
    const double start = now();
    const SDL_AudioDeviceID id = SDL_OpenAudioDevice(name, capture, wish, got, changes);
    watch().opened = now();
    watch().sums.opening += watch().opened - start;
    ++watch().sums.deviceCount;
    return id;
}

void SDLCALL closeWatched(SDL_AudioDeviceID device)
{
    const double start = now();
    watch().sums.held += start - watch().opened;
    SDL_CloseAudioDevice(device);
    watch().sums.closing += now() - start;
}

void listBare()
{
    const SDL_AudioSpec spec = digitFormat();
    const int count = SDL_GetNumAudioDevices(0);
    for (int index = 0; index < count; ++index) {
        const std::string name = SDL_GetAudioDeviceName(index, 0);
        closeWatched(openWatched(name.c_str(), 0, &spec, nullptr, 0));
    }
}

template <typename List>
Parts partsOf(const List &list)
{
    watch() = {};
    const double start = now();
    list();
    Parts parts = watch().sums;
    parts.whole = now() - start;
    for (double *part : {&parts.opening, &parts.held, &parts.closing, &parts.whole})
        *part /= parts.deviceCount;
    return parts;
}

} // namespace

void refreshParts(const QStringList &arguments)
{
    ostra::audio::sdl().openDevice = &openWatched;
    ostra::audio::sdl().closeDevice = &closeWatched;
    ostra::audio::AudioComponentManager manager({15, 0, 0});
    const Parts parts = arguments.value(0) == u"module" ? partsOf([&] { manager.refresh(); }) : partsOf(&listBare);
    std::printf("%.4f %.4f %.4f %.4f %d\n", parts.opening, parts.held, parts.closing,
                parts.whole - parts.opening - parts.held - parts.closing, parts.deviceCount);
    ostra::audio::sdl() = {};
}

} // namespace bench
