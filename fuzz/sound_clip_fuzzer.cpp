// SPDX-License-Identifier: Apache-2.0
#include "audio/audio_component.h"
#include "audio/executable_folder.h"
#include "audio/sound_clip.h"
#include "autotests/support/fake_sdl.h"
#include "fuzz/fuzz_check.h"
#include "utils/language.h"

#include <QDir>
#include <QFile>

#include <cstring>
#include <numeric>

using namespace ostra::audio;
using fuzz::require;

namespace {

FakeSdl *fakeSdl = nullptr;
// All ten clips are there; digit 0 comes from the input, 1 is sound, the others are not looked into.
std::string theFile;
QByteArray soundFile;
const AudioComponent *current = nullptr;
int queueCount = 0;
volatile int heard = 0;

SDL_RWops *openStream(const char *path, const char *)
{
    if (QByteArray(path).contains("/0_"))
        return SDL_RWFromConstMem(theFile.data(), static_cast<int>(theFile.size())); // null for an empty file
    return SDL_RWFromConstMem(soundFile.constData(), static_cast<int>(soundFile.size()));
}

// The device would read every byte.
int queue(SDL_AudioDeviceID id, const void *data, Uint32 byteCount)
{
    ++queueCount;
    const ClipState &state = current->clipState();
    require(id == state.deviceId && data == state.clip.get() && byteCount == state.clipByteCount, "the clip itself is queued");
    const auto *samples = static_cast<const Uint8 *>(data);
    heard = std::accumulate(samples, samples + byteCount, 0, [](int sum, Uint8 sample) { return (sum + sample) & 0xFF; });
    return 0;
}

// A header of 16-bit PCM and 8 frames.
QByteArray smallWave()
{
    return QByteArray::fromHex("524946464400000057415645666d74201000000001000200"
                               "44ac000010b10200040010006461746120000000") +
           QByteArray(32, '\x11');
}

void makeClips()
{
    const AudioComponent first("Speakers"); // the first one finds out the language
    const std::string language = ostra::utils::currentLanguage();
    const QString folder = QString::fromStdString(executableFolder() + "/audio_files/" + language + '/');
    QDir().mkpath(folder);
    for (int digit = 0; digit <= 9; ++digit) {
        QFile file(folder + QStringLiteral("%1_%2.wav").arg(digit).arg(QString::fromStdString(language)));
        require(file.open(QIODevice::WriteOnly), "the clips can be written");
    }
}

// The first load of a component against what the sound library says of the same bytes by itself.
void checkFirstLoad(const ClipState &state)
{
    SDL_AudioSpec spec{};
    Uint8 *samples = nullptr;
    Uint32 byteCount = 0;
    const bool isLoaded = SDL_LoadWAV_RW(openStream("/0_", "rb"), 1, &spec, &samples, &byteCount) != nullptr;
    const ClipBuffer direct(samples);
    require(state.clipByteCount == byteCount && (state.clip != nullptr) == (samples != nullptr),
            "the clip is as long as loaded directly");
    require(samples == nullptr || std::memcmp(state.clip.get(), samples, byteCount) == 0, "the clip has the same samples");
    const SDL_AudioSpec &taken = state.spec;
    require(taken.freq == (isLoaded ? spec.freq : 22050) && taken.channels == (isLoaded ? spec.channels : 2) &&
                taken.format == spec.format,
            "the format is that of the file, or the fallback sound's");
}

void checkState(const AudioComponent &component)
{
    const ClipState &state = component.clipState();
    require((state.clip == nullptr) == (state.clipByteCount == 0), "a clip has a length, no clip has none");
    require(state.spec.freq > 0 && state.spec.channels > 0, "there is always a format to report");
    require(state.isOpen, "the device was opened");
}

void load(AudioComponent &component, int digit)
{
    current = &component;
    queueCount = 0;
    const std::int32_t isReady = loadClip(component, digit);
    require(isReady == 1 && queueCount == 1, "with ten clips there and a device that opens, the clip is ready");
    checkState(component);
    closeDevice(component);
    require(!component.clipState().isOpen, "closed is closed");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    static FakeSdl fake;
    fakeSdl = &fake;
    sdl().queueAudio = queue;
    sdl().streamFromFile = openStream;
    soundFile = smallWave();
    makeClips();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t byteCount)
{
    fakeSdl->calls.clear(); // else they take a gigabyte in a long run
    theFile.assign(fuzz::chars(data), byteCount);
    AudioComponent component("Speakers");
    load(component, 0);
    checkFirstLoad(component.clipState());
    load(component, 1);
    require(component.clipState().clipByteCount == 32 && component.clipState().spec.freq == 44100,
            "a sound clip is loaded whatever came before");
    load(component, 0);
    return 0;
}
