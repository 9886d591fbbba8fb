// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/audio_component.h"

#include <SDL.h>

#include <QString>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

/// What the figures of the playback test share: the digits to be drawn, and where its time goes inside the sound library.
namespace bench {

/// The device that is played on; the first listed one whose name begins so (Wine adds to the names).
std::string deviceName(const QString &beginning);

/// The digits 1, 2, 3 are drawn from now on; every opening, close and hold of the module is timed.
class PlaybackStage {
public:
    PlaybackStage();
    ~PlaybackStage();
    PlaybackStage(const PlaybackStage &) = delete;
    PlaybackStage &operator=(const PlaybackStage &) = delete;

    static constexpr int digits[3] = {1, 2, 3};

    static std::chrono::steady_clock::duration timeInSoundLibrary();
    /// How the module began to play, the last time.
    struct Start {
        std::chrono::steady_clock::time_point opening;
        std::chrono::steady_clock::time_point opened;
        std::chrono::steady_clock::time_point started;
    };
    static Start lastStart();
    static int closedCount();
    static void onClosed(std::function<void(int closedCount)> action);
};

/// One clip on one device as a program without our module plays it: open, queue, unpause, hold one second, close.
class BarePlayer {
public:
    explicit BarePlayer(std::string device);

    void play(int digit) const;

private:
    struct Clip {
        SDL_AudioSpec spec{};
        std::vector<Uint8> samples;
    };

    std::string device_;
    std::vector<Clip> clips_; // of the digits 1, 2, 3
};

} // namespace bench
