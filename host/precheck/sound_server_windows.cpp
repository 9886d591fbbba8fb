// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/machine.h"

namespace host {

// Part of the system: it has no version of its own.
QString soundServerName() { return QStringLiteral("Windows Core Audio"); }

} // namespace host
