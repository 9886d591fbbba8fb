// SPDX-License-Identifier: Apache-2.0
// Speaks one digit on one device, as the playback test does: speak_digit DEVICE DIGIT [REPORT_FILE]. The language comes from
// config.ini in the current folder. Exit code 0 when the digit was played, 1 when it was not ready to play, 2 on bad usage.
#include "audio/audio_component.h"
#include "audio/describe_component.h"
#include "audio/sdl_api.h"
#include "audio/sound_clip.h"
#include "audio/sound_driver.h"

#include <cstdio>
#include <cstdlib>
#include <string>

using namespace ostra::audio;

namespace {

// A file, since a Windows program's output does not always reach a pipe here.
bool writeProperties(const AudioComponent &component, const char *path)
{
    FILE *out = std::fopen(path, "wb");
    if (out == nullptr)
        return false;
    for (const auto &[key, value] : component.info().properties)
        std::fprintf(out, "%s=%s\n", key.c_str(), value.c_str());
    return std::fclose(out) == 0;
}

int speak(const std::string &device, int digit, const char *report)
{
    AudioComponent component(device);
    describeComponent(component);
    if (report != nullptr && !writeProperties(component, report))
        return 2;
    const bool isReady = loadClip(component, digit) == 1;
    if (isReady)
        playClip(component);
    closeDevice(component);
    return isReady ? 0 : 1;
}

} // namespace

int main(int argumentCount, char **arguments)
{
    if (argumentCount < 3) {
        std::fprintf(stderr, "usage: speak_digit DEVICE DIGIT [REPORT_FILE]\n");
        return 2;
    }
    sdl().setEnvironment("SDL_AUDIODRIVER", soundDriverName(), 1);
    sdl().initSubSystem(SDL_INIT_AUDIO);
    const int code = speak(arguments[1], std::atoi(arguments[2]), argumentCount > 3 ? arguments[3] : nullptr);
    sdl().quit();
    return code;
}
