// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/sound_server_name.h"

namespace host {

QString soundServerName() { return {}; }

} // namespace host
