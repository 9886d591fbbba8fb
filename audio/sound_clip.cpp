// SPDX-License-Identifier: Apache-2.0
#include "audio/sound_clip.h"

#include "audio/audio_component.h"
#include "audio/clip_files.h"
#include "audio/executable_folder.h"
#include "audio/fallback_sound.h"
#include "audio/sdl_api.h"
#include "utils/language.h"

#include <string>
#include <utility>

namespace ostra::audio {

namespace {

constexpr SDL_AudioDeviceID firstDeviceId = 2; // the sound library keeps 0 and 1 for itself
constexpr Uint32 holdMilliseconds = 1000;

void loadFile(ClipState &state, const std::string &path)
{
    Uint8 *samples = state.clip.get();
    // A stream that is null leaves everything untouched; a broken file yields a null buffer of length 0.
    sdl().loadWav(sdl().streamFromFile(path.c_str(), "rb"), 1, &state.spec, &samples, &state.clipByteCount);
    if (samples == state.clip.get())
        return;
    const ClipBuffer previous = std::exchange(state.clip, ClipBuffer(samples));
}

void openDevice(ClipState &state, const std::string &deviceName)
{
    // No obtained record: the format asked for is the one that is reported.
    state.deviceId = sdl().openDevice(deviceName.c_str(), 0, &state.spec, nullptr, 0);
    state.isOpen = state.deviceId >= firstDeviceId;
}

// One for the whole library, kept until the process ends: the load of the fallback sound needs a place for its samples.
ClipBuffer &fallbackBuffer()
{
    static ClipBuffer buffer;
    return buffer;
}

void takeFallbackFormat(SDL_AudioSpec &spec)
{
    SDL_AudioSpec fallback{};
    Uint8 *samples = nullptr;
    Uint32 byteCount = 0;
    SDL_RWops *stream = sdl().streamFromMemory(fallbackSound().data(), static_cast<int>(fallbackSoundByteCount));
    const bool isLoaded = sdl().loadWav(stream, 0, &fallback, &samples, &byteCount) != nullptr;
    if (stream != nullptr)
        sdl().closeStream(stream);
    if (!isLoaded)
        return;
    fallbackBuffer().reset(samples);
    spec.freq = fallback.freq;
    spec.channels = fallback.channels;
}

} // namespace

std::int32_t loadClip(AudioComponent &component, std::int32_t number)
{
    ClipState &state = component.clipState();
    const std::string folder = executableFolder();
    const std::string language = utils::currentLanguage();
    loadFile(state, clipPath(folder, language, number));
    openDevice(state, component.name());
    if (state.spec.freq == 0 || state.spec.channels == 0)
        takeFallbackFormat(state.spec);
    if (!state.isOpen || !allClipsPresent(folder, language))
        return 0;
    return sdl().queueAudio(state.deviceId, state.clip.get(), state.clipByteCount) == -1 ? 0 : 1;
}

void playClip(const AudioComponent &component)
{
    sdl().pauseDevice(component.clipState().deviceId, 0);
    sdl().delay(holdMilliseconds);
}

bool isPlaying(const AudioComponent &component)
{
    const ClipState &state = component.clipState();
    return state.isOpen && sdl().deviceStatus(state.deviceId) == SDL_AUDIO_PLAYING;
}

void closeDevice(AudioComponent &component)
{
    ClipState &state = component.clipState();
    if (std::exchange(state.isOpen, false))
        sdl().closeDevice(state.deviceId);
    if (!state.clip)
        sdl().freeWav(nullptr); // only ever the null pointer: a loaded clip outlives the device on purpose
}

} // namespace ostra::audio
