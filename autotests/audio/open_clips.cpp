// SPDX-License-Identifier: Apache-2.0
// Tells whether the clips beside this executable are found and can be loaded, for a test that copies it to odd places.
#include "audio/clip_files.h"
#include "audio/executable_folder.h"
#include "audio/sdl_api.h"

#include <cstdio>
#include <string>

int main(int argumentCount, char **arguments)
{
    using namespace ostra::audio;
    const std::string folder = executableFolder();
    SDL_AudioSpec spec{};
    Uint8 *samples = nullptr;
    Uint32 byteCount = 0;
    const std::string path = clipPath(folder, "en_US", 7);
    const bool isLoaded = SDL_LoadWAV_RW(SDL_RWFromFile(path.c_str(), "rb"), 1, &spec, &samples, &byteCount) != nullptr;
    SDL_FreeWAV(samples);
    const std::string text = std::string(allClipsPresent(folder, "en_US") ? "found" : "missing") + ' ' +
                             (isLoaded ? "loaded " : "refused ") + std::to_string(spec.freq);
    // A file, since a Windows program's output does not always reach a pipe here.
    FILE *out = argumentCount > 1 ? std::fopen(arguments[1], "wb") : stdout;
    if (out == nullptr)
        return 2;
    std::fwrite(text.data(), 1, text.size(), out);
    return std::fclose(out) == 0 ? 0 : 2;
}
