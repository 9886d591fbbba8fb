// SPDX-License-Identifier: Apache-2.0
#include "audio/volume_guard.h"

namespace ostra::audio {

void RestoreAndDestroy::operator()(AudioControllerVolume *guard) const noexcept
{
    guard->restoreVolume();
    delete guard;
}

} // namespace ostra::audio
