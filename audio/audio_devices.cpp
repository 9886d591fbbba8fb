// SPDX-License-Identifier: Apache-2.0
#include "audio/audio_devices.h"

#include "audio/sdl_api.h"

#include <algorithm>

namespace ostra::audio {

namespace {

// Negative while the sound library is not started.
int countDevices(bool capture) { return sdl().deviceCount(capture ? 1 : 0); }

} // namespace

bool hasAudioDevices(bool capture) { return countDevices(capture) > 0; }

std::vector<std::string> listAudioDevices(bool capture)
{
    std::vector<std::string> names;
    const int count = countDevices(capture);
    for (int index = 0; index < count; ++index) {
        if (const char *name = sdl().deviceName(index, capture ? 1 : 0))
            names.emplace_back(name);
    }
    return names;
}

bool isAudioDeviceConnected(const std::string &name, bool capture)
{
    const std::vector<std::string> names = listAudioDevices(capture);
    return std::find(names.begin(), names.end(), name) != names.end();
}

} // namespace ostra::audio
