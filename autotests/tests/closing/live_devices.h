// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/sdl_api.h"
#include "autotests/views/fake_sound.h"

/// Devices of a `FakeSound` that move sound as those of the library do: each has a thread of its own, which calls back while
/// the device is not paused and holds the device's lock meanwhile. Neither pausing nor closing returns before the callback has.
/// The library's waits go at the pace of the dialogs' clock.
class LiveDevices {
public:
    /// Takes the place of the fake's calls until it is destroyed; then no device may be open.
    LiveDevices();
    ~LiveDevices();
    LiveDevices(const LiveDevices &) = delete;
    LiveDevices &operator=(const LiveDevices &) = delete;

    FakeSound sound;

    /// Devices whose threads run.
    static int openCount();
    /// Calls of callbacks so far.
    static int callCount();
};
