// SPDX-License-Identifier: Apache-2.0
#include "audio/volume_guard.h"

#include "audio/saved_volumes.h"

namespace ostra::audio {

/// The guard over the endpoints of Windows Core Audio.
class AudioControllerVolumeWindows final : public AudioControllerVolume {
public:
    bool setVolume(std::int32_t percent) override { return volumes_.raise(percent); }
    bool restoreVolume() override { return volumes_.restore(); }
    bool reapplyCurrentVolume() override { return SavedVolumes::reapplyCurrent(); }

private:
    SavedVolumes volumes_;
};

VolumeGuard makeVolumeGuard(std::int32_t percent)
{
    VolumeGuard guard(new AudioControllerVolumeWindows);
    guard->setVolume(percent);
    return guard;
}

} // namespace ostra::audio
