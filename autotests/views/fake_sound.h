// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/sdl_api.h"

#include <atomic>
#include <mutex>
#include <string>
#include <vector>

/// Sound devices without a sound library, for pages whose workers run on threads of their own. Its half second lasts 5 ms.
class FakeSound {
public:
    /// Takes the place of the real calls until it is destroyed. One at a time; every worker must have ended by then.
    FakeSound();
    ~FakeSound();
    FakeSound(const FakeSound &) = delete;
    FakeSound &operator=(const FakeSound &) = delete;

    // Changed on the thread that lists devices only.
    std::vector<std::string> microphones = {"Mic A", "Mic B"};
    std::vector<std::string> outputs = {"Speakers"};

    /// What was opened, in order: "NAME 1" for a microphone, "NAME 0" for an output.
    std::vector<std::string> openedNames() const;
    void noteOpened(std::string call);

    std::atomic<bool> keepsNames = true; ///< of what was opened
    std::atomic<bool> canOpen = true;
    std::atomic<bool> isStopped = false;    ///< as after the device vanished
    std::atomic<bool> hangsOnClose = false; ///< a device that is being closed waits until this is false
    std::atomic<int> openedCount = 0;
    std::atomic<int> closedCount = 0;
    std::atomic<int> quitCount = 0;

private:
    mutable std::mutex mutex_;
    std::vector<std::string> openedNames_;
    ostra::audio::SdlApi previous_;
};
