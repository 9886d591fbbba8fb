// SPDX-License-Identifier: Apache-2.0
#include "audio/sound_driver.h"

namespace ostra::audio {

const char *soundDriverName() noexcept { return "wasapi"; }

bool canStartSoundLibrary() { return true; }

} // namespace ostra::audio
