// SPDX-License-Identifier: Apache-2.0
#include "autotests/e2e/loss/system_ways.h"

namespace system_ways {

bool keepsFirstUse() { return true; }

bool waitsForSuspended() { return false; }

const char *shell() { return "Z:/bin/sh"; } // the tests run under Wine

} // namespace system_ways
