// SPDX-License-Identifier: Apache-2.0
#include "autotests/e2e/loss/system_ways.h"

namespace system_ways {

bool keepsFirstUse() { return false; }

bool waitsForSuspended() { return true; }

const char *shell() { return "/bin/sh"; }

} // namespace system_ways
