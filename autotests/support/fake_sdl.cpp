// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/fake_sdl.h"

#include <algorithm>
#include <iterator>

namespace {

FakeSdl *current = nullptr; // the library's calls carry no user data

void record(std::string call)
{
    current->calls.push_back(std::move(call));
    if (current->onCall)
        current->onCall(current->calls.back());
}

void track(SDL_AudioStatus status)
{
    if (current->tracksStatus)
        current->status = status;
}

int fakeCount(int isCapture)
{
    record("count " + std::to_string(isCapture));
    return current->deviceCount.value_or(static_cast<int>(current->deviceNames.size()));
}

const char *fakeName(int index, int isCapture)
{
    record("name " + std::to_string(index) + " " + std::to_string(isCapture));
    const auto &name = current->deviceNames.at(static_cast<std::size_t>(index));
    return name ? name->c_str() : nullptr;
}

const char *fakeDriver() { return current->driver ? current->driver->c_str() : nullptr; }

SDL_AudioDeviceID fakeOpen(const char *name, int isCapture, const SDL_AudioSpec *desired, SDL_AudioSpec *obtained, int changes)
{
    record("open " + std::string(name) + " " + std::to_string(isCapture) + (obtained != nullptr ? " obtained" : "") +
           (changes != 0 ? " changes" : ""));
    current->openedSpec = *desired;
    if (obtained != nullptr)
        *obtained = current->obtainedSpec.value_or(*desired);
    track(current->nextDeviceId == 0 ? SDL_AUDIO_STOPPED : SDL_AUDIO_PAUSED);
    return current->nextDeviceId;
}

void fakeClose(SDL_AudioDeviceID id)
{
    record("close " + std::to_string(id));
    track(SDL_AUDIO_STOPPED);
}

void fakePause(SDL_AudioDeviceID id, int on)
{
    record("pause " + std::to_string(id) + " " + std::to_string(on));
    track(on != 0 ? SDL_AUDIO_PAUSED : SDL_AUDIO_PLAYING);
}

SDL_AudioStatus fakeStatus(SDL_AudioDeviceID id)
{
    record("status " + std::to_string(id));
    return current->status;
}

int fakeQueue(SDL_AudioDeviceID id, const void *data, Uint32 byteCount)
{
    record("queue " + std::to_string(id) + " " + std::to_string(byteCount) + (data == nullptr ? " null" : ""));
    return current->queueResult;
}

SDL_RWops *fakeFile(const char *path, const char *mode)
{
    record("file " + std::string(path) + " " + mode);
    return SDL_RWFromFile(path, mode);
}

SDL_RWops *fakeMemory(const void *data, int byteCount)
{
    record("memory " + std::to_string(byteCount));
    return current->loadsFallback ? SDL_RWFromConstMem(data, byteCount) : nullptr;
}

void fakeFree(Uint8 *samples)
{
    record(samples == nullptr ? "free null" : "free clip");
    SDL_FreeWAV(samples);
}

void fakeDelay(Uint32 milliseconds) { record("delay " + std::to_string(milliseconds)); }
void fakeQuit() { record("quit"); }

void fakeCleanUp()
{
    SDL_TLSCleanup();
    ++current->threadCleanUps;
}

int fakeInit(Uint32 flags)
{
    record("init " + std::to_string(flags));
    return 0;
}

int fakeSetEnvironment(const char *name, const char *value, int overwrite)
{
    record("setenv " + std::string(name) + "=" + value + (overwrite != 0 ? " overwrite" : ""));
    return SDL_setenv(name, value, overwrite);
}

} // namespace

FakeSdl::FakeSdl() : previous_(ostra::audio::sdl())
{
    current = this;
    ostra::audio::SdlApi &api = ostra::audio::sdl();
    api.deviceCount = fakeCount;
    api.deviceName = fakeName;
    api.currentDriver = fakeDriver;
    api.openDevice = fakeOpen;
    api.closeDevice = fakeClose;
    api.pauseDevice = fakePause;
    api.deviceStatus = fakeStatus;
    api.queueAudio = fakeQueue;
    api.streamFromFile = fakeFile;
    api.streamFromMemory = fakeMemory;
    api.freeWav = fakeFree;
    api.delay = fakeDelay;
    api.quit = fakeQuit;
    api.cleanUpThread = fakeCleanUp;
    api.initSubSystem = fakeInit;
    api.setEnvironment = fakeSetEnvironment;
}

FakeSdl::~FakeSdl()
{
    ostra::audio::sdl() = previous_;
    current = nullptr;
}

void FakeSdl::callBack(std::vector<std::uint8_t> &stream) const
{
    openedSpec.callback(openedSpec.userdata, stream.data(), static_cast<int>(stream.size()));
}

int FakeSdl::count(const std::string &prefix) const
{
    return static_cast<int>(
        std::count_if(calls.begin(), calls.end(), [&prefix](const std::string &call) { return call.starts_with(prefix); }));
}

std::vector<std::string> FakeSdl::deviceCalls() const
{
    std::vector<std::string> result;
    std::copy_if(calls.begin(), calls.end(), std::back_inserter(result), [](const std::string &call) {
        return !call.starts_with("file ") && !call.starts_with("memory ") && !call.starts_with("free ");
    });
    return result;
}
