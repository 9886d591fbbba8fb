// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/microphone_privacy.h"

namespace host {

bool isMicrophoneBlocked() { return false; }

} // namespace host
