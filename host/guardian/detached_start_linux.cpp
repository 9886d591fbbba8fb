// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/detached_start.h"

namespace host {

// The guardian leaves the session by itself, before it says that it is ready.
void prepareDetachedStart(QProcess &) {}

} // namespace host
