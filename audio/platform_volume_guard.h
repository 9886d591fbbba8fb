// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/saved_volumes.h"
#include "audio/volume_guard.h"

namespace ostra::audio {

/// What the guards of all platforms have in common: everything but their name.
class EndpointVolumeGuard : public AudioControllerVolume {
public:
    bool setVolume(std::int32_t percent) override { return volumes_.raise(percent); }
    bool restoreVolume() override { return volumes_.restore(); }
    bool reapplyCurrentVolume() override { return SavedVolumes::reapplyCurrent(); }

private:
    SavedVolumes volumes_;
};

/// The guard of the platform that this was built for, with nothing kept yet.
std::unique_ptr<AudioControllerVolume> makePlatformVolumeGuard();

} // namespace ostra::audio
