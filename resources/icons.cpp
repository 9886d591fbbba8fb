// SPDX-License-Identifier: Apache-2.0
#include "resources/icons.h"

#include <QtGlobal>

// The macro declares a function of the global namespace.
static void registerIcons() { Q_INIT_RESOURCE(module_icons); }

namespace ostra {

void initIcons() { registerIcons(); }

} // namespace ostra
