// SPDX-License-Identifier: Apache-2.0
#include "module/audio_module_interface.h"

#include "audio/abandoned_workers.h"

namespace ostra {

AudioModuleInterface::~AudioModuleInterface() { audio::quitSoundLibrary(); }

} // namespace ostra
