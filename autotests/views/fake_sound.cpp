// SPDX-License-Identifier: Apache-2.0
#include "autotests/views/fake_sound.h"

#include <chrono>
#include <thread>

namespace {

FakeSound *current = nullptr; // the library's calls carry no user data

const std::vector<std::string> &names(int isCapture) { return isCapture != 0 ? current->microphones : current->outputs; }

void rest() { std::this_thread::sleep_for(std::chrono::milliseconds(5)); }

void closeDevice(SDL_AudioDeviceID)
{
    while (current->hangsOnClose)
        rest();
    ++current->closedCount;
}

SDL_AudioDeviceID openDevice(const char *name, int isCapture, const SDL_AudioSpec *desired, SDL_AudioSpec *obtained, int)
{
    if (!current->canOpen)
        return 0;
    if (obtained != nullptr)
        *obtained = *desired;
    if (current->keepsNames)
        current->noteOpened(std::string(name) + ' ' + std::to_string(isCapture));
    return static_cast<SDL_AudioDeviceID>(1 + ++current->openedCount);
}

} // namespace

FakeSound::FakeSound() : previous_(ostra::audio::sdl())
{
    current = this;
    ostra::audio::SdlApi &sdl = ostra::audio::sdl();
    sdl.deviceCount = [](int isCapture) { return static_cast<int>(names(isCapture).size()); };
    sdl.deviceName = [](int index, int isCapture) { return names(isCapture).at(static_cast<std::size_t>(index)).c_str(); };
    sdl.openDevice = &openDevice;
    sdl.closeDevice = &closeDevice;
    sdl.pauseDevice = [](SDL_AudioDeviceID, int) {};
    sdl.deviceStatus = [](SDL_AudioDeviceID) { return current->isStopped ? SDL_AUDIO_STOPPED : SDL_AUDIO_PLAYING; };
    sdl.delay = [](Uint32) { rest(); };
    sdl.quit = [] { ++current->quitCount; };
}

FakeSound::~FakeSound()
{
    ostra::audio::sdl() = previous_;
    current = nullptr;
}

std::vector<std::string> FakeSound::openedNames() const
{
    const std::lock_guard lock(mutex_);
    return openedNames_;
}

void FakeSound::noteOpened(std::string call)
{
    const std::lock_guard lock(mutex_);
    openedNames_.push_back(std::move(call));
}
