// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/sound_figures.h"

#include "audio/sound_driver.h"
#include "benchmarks/turn_watch.h"
#include "resources/icons.h"
#include "views/register_types.h"

#include <SDL.h>

#include <array>
#include <cstdio>
#include <utility>

namespace {

using Figure = void (*)(const QStringList &);
constexpr std::array<std::pair<const char *, Figure>, 5> figures{{{"first-digit", &bench::firstDigitFigure},
                                                                  {"run", &bench::playbackRunFigures},
                                                                  {"loss", &bench::deviceLossFigure},
                                                                  {"refresh-parts", &bench::refreshParts},
                                                                  {"memory-of-dialogs", &bench::memoryOfDialogs}}};

bool startSound()
{
    SDL_setenv("SDL_AUDIODRIVER", ostra::audio::soundDriverName(), 1);
    return SDL_InitSubSystem(SDL_INIT_AUDIO) == 0 && SDL_GetNumAudioDevices(0) > 0;
}

} // namespace

/// bench_sound FIGURE [ARGUMENT…]
int main(int argumentCount, char **arguments)
{
    const bench::WatchedApplication application(argumentCount, arguments);
    const QStringList words = QApplication::arguments();
    ostra::initIcons();
    ostra::registerViewTypes();
    if (words.size() < 2 || !startSound()) {
        std::fprintf(stderr, "bench_sound: no figure named, or no device: %s\n", SDL_GetError());
        return 2;
    }
    for (const auto &[name, measure] : figures) {
        if (words.at(1) == QLatin1StringView(name))
            measure(words.mid(2));
    }
    SDL_Quit();
    return 0;
}
