// SPDX-License-Identifier: Apache-2.0
#include "audio/platform_volume_guard.h"

namespace ostra::audio {

/// The guard over the endpoints of Windows Core Audio.
class AudioControllerVolumeWindows final : public EndpointVolumeGuard {};

std::unique_ptr<AudioControllerVolume> makePlatformVolumeGuard() { return std::make_unique<AudioControllerVolumeWindows>(); }

} // namespace ostra::audio
