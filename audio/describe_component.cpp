// SPDX-License-Identifier: Apache-2.0
#include "audio/describe_component.h"

#include "audio/audio_component.h"
#include "audio/driver_version.h"
#include "audio/sdl_api.h"
#include "audio/sound_clip.h"
#include "contract/property_keys.h"
#include "contract/sal.h"
#include "utils/guarded.h"

#include <memory>
#include <string>

namespace ostra::audio {

namespace {

struct CloseDevice {
    void operator()(AudioComponent *component) const { closeDevice(*component); }
};

std::string numberText(int number)
{
    const auto ask = [number] {
        sal::NumberHandler *handler = get_number_handler();
        return handler != nullptr ? handler->toText(number) : std::to_string(number);
    };
    return utils::answerOr(ask, std::to_string(number));
}

std::string currentDriverName()
{
    const char *name = sdl().currentDriver();
    return name != nullptr ? name : "";
}

void addDriverVersion(AudioComponent &component)
{
    const auto ask = [&component] { return lookUpDriverVersion(component.name()); };
    if (utils::answerOr(ask, std::string()).empty())
        return;
    component.addProperty(properties::driverVersion, utils::answerOr(ask, std::string())); // asked twice by design
}

} // namespace

void describeComponent(AudioComponent &component)
{
    component.beginDescription();
    component.addProperty(properties::udi, component.name());
    // Closes at the end of the description, also when it ends in an exception.
    const std::unique_ptr<AudioComponent, CloseDevice> closeAtEnd(&component);
    loadClip(component, 0); // only the format matters here, so the answer does not
    const SDL_AudioSpec &spec = component.clipState().spec;
    component.addProperty(properties::numberOfChannels, numberText(spec.channels));
    component.addProperty(properties::sampleRate, numberText(spec.freq));
    component.addProperty(properties::driverName, currentDriverName());
    addDriverVersion(component);
}

} // namespace ostra::audio
