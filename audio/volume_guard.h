// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>

namespace ostra::audio {

/// Holds every active audio endpoint of the machine at one volume for a while. Used by one thread. Nothing is reported to the
/// user; all three operations answer **true for failure**, and a failure part-way leaves the endpoints already handled at
/// their new volume. No operation throws. On Linux each pass over the endpoints (two in `setVolume` and in
/// `reapplyCurrentVolume`, one in `restoreVolume`) blocks for 2 s at most.
class AudioControllerVolume {
public:
    /// Does not restore.
    virtual ~AudioControllerVolume() = default;

    /// Unmutes every endpoint and sets it to `percent`, clamped to 0 to 100. The first call that succeeds in reading the
    /// volumes keeps them for `restoreVolume`; later calls do not read again. True also when an endpoint appeared since.
    virtual bool setVolume(std::int32_t percent) = 0;

    /// Gives each endpoint the volume and mute state that it had before, found by its id. False also when nothing was kept.
    /// An endpoint that has vanished is passed over; at one that appeared the pass stops and answers true.
    virtual bool restoreVolume() = 0;

    /// Sets each endpoint to the volume that it has, so that the system takes notice. True when none could be read.
    virtual bool reapplyCurrentVolume() = 0;
};

/// A plain delete would leave the machine at full volume.
struct RestoreAndDestroy {
    void operator()(AudioControllerVolume *guard) const noexcept;
};

/// Restores the volumes as soon as it lets go of the guard, whatever the reason.
using VolumeGuard = std::unique_ptr<AudioControllerVolume, RestoreAndDestroy>;

/// Sets every endpoint to `percent` until the guard is disposed of; whether that worked shows nowhere. One guard at a time: a
/// second one would keep the raised volumes and restore those, so where a guard exists call its `setVolume`. Throws only
/// std::bad_alloc, with nothing changed.
VolumeGuard makeVolumeGuard(std::int32_t percent);

} // namespace ostra::audio
