// SPDX-License-Identifier: Apache-2.0
#include "audio/audio_component.h"

#include "utils/language.h"

namespace ostra::audio {

AudioComponent::AudioComponent(const std::string &deviceName) : SystemComponent(deviceName) { utils::initLanguage(); }

void AudioComponent::beginDescription()
{
    properties().clear();
    setId(name());
}

} // namespace ostra::audio
