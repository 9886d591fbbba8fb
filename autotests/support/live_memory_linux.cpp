// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/live_memory.h"

#include <malloc.h>

std::size_t liveByteCount() { return mallinfo2().uordblks; }
