// SPDX-License-Identifier: Apache-2.0
#include "module/device_hints.h"

#include "contract/message_keys.h"

#include <initializer_list>

namespace ostra {

namespace {

// The first key is the headline of those that follow.
std::string deviceHint(std::initializer_list<const char *> components)
{
    std::string hint = keys::possibleDefectiveComponents;
    const char *separator = ": ";
    for (const char *component : components) {
        hint.append(separator).append(component);
        separator = ", ";
    }
    return hint;
}

} // namespace

std::string playbackHint() { return deviceHint({keys::speakers}); }

std::string microphoneHint() { return deviceHint({keys::microphone, keys::cameraMicrophoneModule, keys::speakers}); }

} // namespace ostra
