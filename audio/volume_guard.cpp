// SPDX-License-Identifier: Apache-2.0
#include "audio/volume_guard.h"

#include "audio/platform_volume_guard.h"

namespace ostra::audio {

void RestoreAndDestroy::operator()(AudioControllerVolume *guard) const noexcept
{
    guard->restoreVolume();
    delete guard;
}

VolumeGuard makeVolumeGuard(std::int32_t percent)
{
    VolumeGuard guard(makePlatformVolumeGuard().release());
    guard->setVolume(percent);
    return guard;
}

} // namespace ostra::audio
