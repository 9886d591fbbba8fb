// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/sdl_api.h"

#include <atomic>
#include <cstdint>
#include <functional>
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
    SDL_AudioSpec openedSpec{};                ///< as the last opening asked for it, with its callback
    std::optional<SDL_AudioSpec> obtainedSpec; ///< what an opening tells that it got; nullopt: what was asked for
    bool tracksStatus = false;                 ///< let openings, pauses and closings set `status` as the real library does

    std::vector<std::string> calls;
    /// Called with each of them, on the thread that made it, before it takes effect.
    std::function<void(const std::string &call)> onCall;
    /// How many workers have given back what the library keeps for their thread, which is the last they do with it. Who has seen
    /// their number may read everything else: ThreadSanitizer does not see that Qt, which is not built for it, waits for a thread.
    std::atomic<int> threadCleanUps = 0;

    /// Calls the callback of the last opening as the library's thread would, whether the device is paused or not.
    void callBack(std::vector<std::uint8_t> &stream) const;

    /// How many recorded calls begin with `prefix`.
    int count(const std::string &prefix) const;
    /// The recorded calls that neither load nor free sounds.
    std::vector<std::string> deviceCalls() const;

private:
    ostra::audio::SdlApi previous_;
};
