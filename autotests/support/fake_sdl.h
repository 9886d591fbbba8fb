// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/sdl_api.h"

#include <optional>
#include <string>
#include <vector>

/// Stands in for the sound library where a test must count its calls, or see it answer what the real one cannot be made to.
/// The calls are recorded as "open X", "close 2", …; WAVE files are still loaded by the real library.
class FakeSdl {
public:
    /// Takes the place of the real calls until it is destroyed. One at a time.
    FakeSdl();
    ~FakeSdl();
    FakeSdl(const FakeSdl &) = delete;
    FakeSdl &operator=(const FakeSdl &) = delete;

    std::vector<std::optional<std::string>> deviceNames; ///< nullopt: the library answers a null name
    std::optional<int> deviceCount;                      ///< nullopt: as many as there are names
    std::optional<std::string> driver = "fake";
    SDL_AudioDeviceID nextDeviceId = 2; ///< 0: cannot be opened
    SDL_AudioStatus status = SDL_AUDIO_STOPPED;
    int queueResult = 0;
    bool loadsFallback = true;
    SDL_AudioSpec openedSpec{}; ///< as the last opening asked for it

    std::vector<std::string> calls;

    /// How many recorded calls begin with `prefix`.
    int count(const std::string &prefix) const;
    /// The recorded calls that neither load nor free sounds.
    std::vector<std::string> deviceCalls() const;

private:
    ostra::audio::SdlApi previous_;
};
