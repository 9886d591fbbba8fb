// SPDX-License-Identifier: Apache-2.0
#include "autotests/tests/closing/live_devices.h"

#include "utils/pace.h"

#include <atomic>
#include <chrono>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace {

class Device {
public:
    explicit Device(const SDL_AudioSpec &spec)
        : spec_(spec), stream_(std::size_t{spec.samples} * spec.channels * (SDL_AUDIO_BITSIZE(spec.format) / 8U)),
          thread_([this] { run(); })
    {}
    ~Device()
    {
        isOpen_ = false;
        thread_.join();
    }
    Device(const Device &) = delete;
    Device &operator=(const Device &) = delete;

    void pause(bool isPaused)
    {
        const std::lock_guard lock(mutex_);
        isPaused_ = isPaused;
    }

    static inline std::atomic<int> callCount = 0;

private:
    void run()
    {
        while (isOpen_) {
            callBack();
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }
    void callBack()
    {
        const std::lock_guard lock(mutex_);
        if (isPaused_ || spec_.callback == nullptr)
            return;
        spec_.callback(spec_.userdata, stream_.data(), static_cast<int>(stream_.size()));
        ++callCount;
    }

    SDL_AudioSpec spec_;
    std::vector<Uint8> stream_;
    std::mutex mutex_;
    bool isPaused_ = true;
    std::atomic<bool> isOpen_ = true;
    std::thread thread_;
};

struct Devices {
    std::mutex mutex;
    std::map<SDL_AudioDeviceID, std::shared_ptr<Device>> open;
    decltype(ostra::audio::SdlApi::openDevice) openFake = nullptr;
    decltype(ostra::audio::SdlApi::closeDevice) closeFake = nullptr;
};

Devices &devices()
{
    static Devices devices;
    return devices;
}

std::shared_ptr<Device> deviceOf(SDL_AudioDeviceID id)
{
    const std::lock_guard lock(devices().mutex);
    const auto found = devices().open.find(id);
    return found == devices().open.end() ? nullptr : found->second;
}

SDL_AudioDeviceID openDevice(const char *name, int isCapture, const SDL_AudioSpec *desired, SDL_AudioSpec *obtained,
                             int changes)
{
    const SDL_AudioDeviceID id = devices().openFake(name, isCapture, desired, obtained, changes);
    if (id == 0)
        return id;
    auto device = std::make_shared<Device>(*desired);
    const std::lock_guard lock(devices().mutex);
    devices().open.emplace(id, std::move(device));
    return id;
}

void closeDevice(SDL_AudioDeviceID id)
{
    {
        std::shared_ptr<Device> closing = deviceOf(id);
        const std::lock_guard lock(devices().mutex);
        devices().open.erase(id);
    }
    devices().closeFake(id);
}

void pauseDevice(SDL_AudioDeviceID id, int on)
{
    if (const std::shared_ptr<Device> device = deviceOf(id))
        device->pause(on != 0);
}

} // namespace

LiveDevices::LiveDevices()
{
    ostra::audio::SdlApi &sdl = ostra::audio::sdl();
    devices().openFake = sdl.openDevice;
    devices().closeFake = sdl.closeDevice;
    sdl.openDevice = &openDevice;
    sdl.closeDevice = &closeDevice;
    sdl.pauseDevice = &pauseDevice;
    sdl.queueAudio = [](SDL_AudioDeviceID, const void *, Uint32) { return 0; };
    sdl.delay = [](Uint32 milliseconds) {
        std::this_thread::sleep_for(ostra::utils::paced(std::chrono::milliseconds(milliseconds)));
    };
    sdl.setEnvironment = [](const char *, const char *, int) { return 0; };
    sdl.initSubSystem = [](Uint32) { return 0; };
}

LiveDevices::~LiveDevices() = default; // the fake puts the real calls back

int LiveDevices::openCount()
{
    const std::lock_guard lock(devices().mutex);
    return static_cast<int>(devices().open.size());
}

int LiveDevices::callCount() { return Device::callCount; }
