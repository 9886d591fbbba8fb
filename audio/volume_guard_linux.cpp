// SPDX-License-Identifier: Apache-2.0
#include "audio/platform_volume_guard.h"

namespace ostra::audio {

/// The guard over the sinks and sources of the PulseAudio server.
class AudioControllerVolumePulse final : public EndpointVolumeGuard {};

std::unique_ptr<AudioControllerVolume> makePlatformVolumeGuard() { return std::make_unique<AudioControllerVolumePulse>(); }

} // namespace ostra::audio
