// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/sound_figures.h"

#include "benchmarks/playback_widgets.h"
#include "benchmarks/resident_memory.h"
#include "benchmarks/workloads.h"

#include <SDL.h>

#include <QApplication>
#include <QPixmapCache>

#include <cstdio>
#include <string>

namespace bench {

void memoryOfDialogs(const QStringList & /*arguments*/)
{
    constexpr int dialogCount = 100;
    SDL_AudioSpec spec{};
    spec.freq = 48000;
    spec.format = AUDIO_S16LSB;
    spec.channels = 2;
    spec.samples = 4096;
    const int count = SDL_GetNumAudioDevices(0);
    for (int index = 0; index < count; ++index) {
        const std::string name = SDL_GetAudioDeviceName(index, 0);
        SDL_CloseAudioDevice(SDL_OpenAudioDevice(name.c_str(), 0, &spec, nullptr, 0));
    }
    for (int shown = 0; shown < dialogCount; ++shown) {
        PlaybackWidgets widgets;
        widgets.dialog.setStyleSheet(productSheet());
        widgets.dialog.show();
        QApplication::processEvents();
    }
    QPixmapCache::clear();
    std::printf("%.0f\n", residentKilobytes());
}

} // namespace bench
