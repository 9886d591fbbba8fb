// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/module_interface.h"

namespace ostra {

/// Builds the module interface with everything below it and starts the sound library. Null when there was no memory for the
/// interface object; nothing is left behind then and the sound library was not touched. The caller owns the result and gives
/// it to `destroyInstance`. May throw `std::bad_alloc` from the objects below.
ModuleInterface *buildInstance();

/// Destroys what the interface names, in the order resource, component manager, then of each diagnostic its tests and itself,
/// then the interface. Goes through the virtual operations only and asks every count anew on each turn.
void destroyInstance(ModuleInterface *instance);

} // namespace ostra
