// SPDX-License-Identifier: Apache-2.0
#include "views/register_types.h"

#include "views/icon_push_button.h"

#include <QMetaType>

namespace ostra {

void registerViewTypes() { qRegisterMetaType<IconPushButton *>(); }

} // namespace ostra
