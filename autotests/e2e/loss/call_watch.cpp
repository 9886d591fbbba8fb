// SPDX-License-Identifier: Apache-2.0
#include "autotests/e2e/loss/call_watch.h"

#include "audio/sdl_api.h"

#include <chrono>
#include <list>
#include <mutex>
#include <set>
#include <utility>

namespace call_watch {

namespace {

using Clock = std::chrono::steady_clock;

struct Entry {
    const char *name;
    Clock::time_point since;
};

struct Notes {
    std::mutex mutex;
    std::list<Entry> calls;
    std::set<SDL_AudioDeviceID> running; ///< nobody has begun to close them
    int openCount = 0;
    int startCount = 0;
    int quitCount = 0;
    bool hasStopped = false; ///< some device, and the module has seen it
    std::vector<int> digits;
    std::function<void(int)> onStart;
};

Notes &notes()
{
    static Notes notes;
    return notes;
}

ostra::audio::SdlApi &real()
{
    static ostra::audio::SdlApi api;
    return api;
}

class Call {
public:
    explicit Call(const char *name)
    {
        const std::lock_guard lock(notes().mutex);
        place_ = notes().calls.insert(notes().calls.end(), {name, Clock::now()});
    }
    ~Call()
    {
        const std::lock_guard lock(notes().mutex);
        notes().calls.erase(place_);
    }
    Call(const Call &) = delete;
    Call &operator=(const Call &) = delete;

private:
    std::list<Entry>::iterator place_;
};

int countDevices(int isCapture)
{
    const Call call("SDL_GetNumAudioDevices");
    return real().deviceCount(isCapture);
}

SDL_AudioDeviceID openDevice(const char *name, int isCapture, const SDL_AudioSpec *desired, SDL_AudioSpec *obtained,
                             int changes)
{
    const Call call("SDL_OpenAudioDevice");
    const SDL_AudioDeviceID id = real().openDevice(name, isCapture, desired, obtained, changes);
    const std::lock_guard lock(notes().mutex);
    if (id != 0) {
        notes().running.insert(id);
        ++notes().openCount;
    }
    return id;
}

void closeDevice(SDL_AudioDeviceID id)
{
    {
        const std::lock_guard lock(notes().mutex);
        notes().running.erase(id);
    }
    {
        const Call call("SDL_CloseAudioDevice");
        real().closeDevice(id);
    }
    const std::lock_guard lock(notes().mutex);
    --notes().openCount;
}

void pauseDevice(SDL_AudioDeviceID id, int isPaused)
{
    {
        const Call call("SDL_PauseAudioDevice");
        real().pauseDevice(id, isPaused);
    }
    if (isPaused != 0)
        return;
    std::function<void(int)> told;
    int count = 0;
    {
        const std::lock_guard lock(notes().mutex);
        told = notes().onStart;
        count = ++notes().startCount;
    }
    if (told)
        told(count);
}

SDL_AudioStatus deviceStatus(SDL_AudioDeviceID id)
{
    const SDL_AudioStatus status = real().deviceStatus(id);
    const std::lock_guard lock(notes().mutex);
    notes().hasStopped = notes().hasStopped || (status == SDL_AUDIO_STOPPED && notes().running.count(id) > 0);
    return status;
}

SDL_RWops *streamFromFile(const char *path, const char *mode)
{
    const std::string text = path;
    const std::size_t name = text.find_last_of("/\\") + 1;
    if (name < text.size() && text[name] >= '0' && text[name] <= '9') {
        const std::lock_guard lock(notes().mutex);
        notes().digits.push_back(text[name] - '0');
    }
    return real().streamFromFile(path, mode);
}

void quit()
{
    {
        const std::lock_guard lock(notes().mutex);
        ++notes().quitCount;
    }
    const Call call("SDL_Quit");
    real().quit();
}

} // namespace

void install()
{
    ostra::audio::SdlApi &api = ostra::audio::sdl();
    api.deviceCount = &countDevices;
    api.openDevice = &openDevice;
    api.closeDevice = &closeDevice;
    api.pauseDevice = &pauseDevice;
    api.deviceStatus = &deviceStatus;
    api.streamFromFile = &streamFromFile;
    api.quit = &quit;
}

void onStart(std::function<void(int)> told)
{
    const std::lock_guard lock(notes().mutex);
    notes().onStart = std::move(told);
}

std::string callsInProgress()
{
    const std::lock_guard lock(notes().mutex);
    std::string text;
    for (const auto &[name, since] : notes().calls) {
        const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - since);
        text += std::string(text.empty() ? "" : ", ") + name + " for " + std::to_string(took.count()) + " ms";
    }
    return text;
}

int openDeviceCount()
{
    const std::lock_guard lock(notes().mutex);
    return notes().openCount;
}

// The lock keeps a device from being closed meanwhile.
bool isSomeDeviceStopped()
{
    const std::lock_guard lock(notes().mutex);
    for (const SDL_AudioDeviceID id : notes().running) {
        if (real().deviceStatus(id) == SDL_AUDIO_STOPPED)
            return true;
    }
    return notes().hasStopped;
}

int quitCount()
{
    const std::lock_guard lock(notes().mutex);
    return notes().quitCount;
}

std::vector<int> digitsLoaded()
{
    const std::lock_guard lock(notes().mutex);
    return notes().digits;
}

void forgetDigits()
{
    const std::lock_guard lock(notes().mutex);
    notes().digits.clear();
}

} // namespace call_watch
