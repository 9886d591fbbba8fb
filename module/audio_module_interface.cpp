// SPDX-License-Identifier: Apache-2.0
#include "module/audio_module_interface.h"

#include "audio/sdl_api.h"

namespace ostra {

AudioModuleInterface::~AudioModuleInterface() { audio::sdl().quit(); }

} // namespace ostra
