// SPDX-License-Identifier: Apache-2.0
#include "audio/audio_component_manager.h"

#include "audio/audio_component.h"
#include "audio/describe_component.h"
#include "audio/sdl_api.h"

#include <QLoggingCategory>

#include <algorithm>
#include <memory>
#include <new>
#include <optional>
#include <string>

namespace ostra::audio {

namespace {

Q_LOGGING_CATEGORY(discovery, "ostra.audio.discovery")

constexpr int outputDevices = 0;

// The library's text dies with its next look at the list, and is null for a device that went away since it was counted.
std::optional<std::string> deviceNameAt(int index)
{
    const char *name = sdl().deviceName(index, outputDevices);
    return name != nullptr ? std::optional<std::string>(name) : std::nullopt;
}

} // namespace

AudioComponentManager::~AudioComponentManager() { releaseComponents(); }

bool AudioComponentManager::hasComponents() { return sdl().deviceCount(outputDevices) > 0; }

// A host built by another compiler could not even catch what its own services throw.
void AudioComponentManager::refresh()
try {
    listDevices();
} catch (const std::bad_alloc &) {
    throw;
} catch (...) {
    // The components listed so far stay.
    qCWarning(discovery, "refresh ended early: a service of the host threw");
}

void AudioComponentManager::listDevices()
{
    releaseComponents();
    if (!hasComponents())
        return;
    std::vector<std::string> taken;
    const int deviceCount = sdl().deviceCount(outputDevices);
    for (int index = 0; index < deviceCount; ++index) {
        const std::optional<std::string> name = deviceNameAt(index);
        if (!name || std::find(taken.begin(), taken.end(), *name) != taken.end())
            continue;
        auto component = std::make_unique<AudioComponent>(*name);
        describeComponent(*component);
        taken.push_back(*name);
        components().push_back(component.get());
        static_cast<void>(component.release()); // the list owns it from here
    }
}

void AudioComponentManager::releaseComponents()
{
    for (SystemComponent *component : components())
        delete dynamic_cast<AudioComponent *>(component); // a foreign component is dropped, never destroyed
    components().clear();
}

} // namespace ostra::audio
