// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/playback_stage.h"

#include "audio/clip_files.h"
#include "audio/executable_folder.h"
#include "audio/sdl_api.h"
#include "utils/language.h"
#include "views/digit_sequence.h"

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace bench {

namespace {

using Clock = std::chrono::steady_clock;

struct Trace {
    Clock::duration spent{};
    int closedCount = 0;
    PlaybackStage::Start lastStart;
    std::function<void(int)> onClosed;
};

Trace &trace()
{
    static Trace current;
    return current;
}

int nextDigit()
{
    static std::size_t drawn = 0;
    return PlaybackStage::digits[drawn++ % 3];
}

template <typename Call>
auto timed(Call call)
{
    struct Stretch {
        Clock::time_point start = Clock::now();
        ~Stretch() { trace().spent += Clock::now() - start; }
    };
    const Stretch stretch;
    return call();
}

SDL_AudioDeviceID SDLCALL openTimed(const char *name, int capture, const SDL_AudioSpec *wish, SDL_AudioSpec *got, int changes)
{
    trace().lastStart.opening = Clock::now();
    const SDL_AudioDeviceID id = timed([&] { return SDL_OpenAudioDevice(name, capture, wish, got, changes); });
    trace().lastStart.opened = Clock::now();
    return id;
}

void SDLCALL startNoted(SDL_AudioDeviceID device, int isPaused)
{
    trace().lastStart.started = Clock::now();
    SDL_PauseAudioDevice(device, isPaused);
}

void SDLCALL holdTimed(Uint32 milliseconds)
{
    timed([&] { SDL_Delay(milliseconds); });
}

void SDLCALL closeTimed(SDL_AudioDeviceID device)
{
    timed([&] { SDL_CloseAudioDevice(device); });
    ++trace().closedCount;
    if (trace().onClosed)
        trace().onClosed(trace().closedCount);
}

} // namespace

std::string deviceName(const QString &beginning)
{
    const int count = SDL_GetNumAudioDevices(0);
    for (int index = 0; index < count; ++index) {
        const QString name = QString::fromUtf8(SDL_GetAudioDeviceName(index, 0));
        if (name.startsWith(beginning))
            return name.toStdString();
    }
    std::fprintf(stderr, "no device %s\n", qPrintable(beginning));
    std::exit(2);
}

PlaybackStage::PlaybackStage()
{
    trace() = {};
    ostra::playbackSources().digit = &nextDigit;
    ostra::audio::sdl().openDevice = &openTimed;
    ostra::audio::sdl().pauseDevice = &startNoted;
    ostra::audio::sdl().closeDevice = &closeTimed;
    ostra::audio::sdl().delay = &holdTimed;
}

PlaybackStage::~PlaybackStage()
{
    ostra::playbackSources() = {};
    ostra::audio::sdl() = {};
}

std::chrono::steady_clock::duration PlaybackStage::timeInSoundLibrary() { return trace().spent; }
PlaybackStage::Start PlaybackStage::lastStart() { return trace().lastStart; }
int PlaybackStage::closedCount() { return trace().closedCount; }
void PlaybackStage::onClosed(std::function<void(int)> action) { trace().onClosed = std::move(action); }

BarePlayer::BarePlayer(std::string device) : device_(std::move(device))
{
    ostra::utils::initLanguage();
    for (const int digit : PlaybackStage::digits) {
        const std::string path =
            ostra::audio::clipPath(ostra::audio::executableFolder(), ostra::utils::currentLanguage(), digit);
        Clip clip;
        Uint8 *samples = nullptr;
        Uint32 byteCount = 0;
        if (SDL_LoadWAV(path.c_str(), &clip.spec, &samples, &byteCount) == nullptr) {
            std::fprintf(stderr, "no clip %s\n", path.c_str());
            std::exit(2);
        }
        clip.samples.assign(samples, samples + byteCount);
        SDL_FreeWAV(samples);
        clips_.push_back(std::move(clip));
    }
}

void BarePlayer::play(int digit) const
{
    const Clip &clip = clips_.at(static_cast<std::size_t>(digit - 1));
    const SDL_AudioDeviceID id = SDL_OpenAudioDevice(device_.c_str(), 0, &clip.spec, nullptr, 0);
    SDL_QueueAudio(id, clip.samples.data(), static_cast<Uint32>(clip.samples.size()));
    SDL_PauseAudioDevice(id, 0);
    SDL_Delay(1000);
    SDL_CloseAudioDevice(id);
}

} // namespace bench
