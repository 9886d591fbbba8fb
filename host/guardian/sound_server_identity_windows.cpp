// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/sound_server_identity.h"

namespace host {

QString soundServerIdentity() { return {}; }

} // namespace host
