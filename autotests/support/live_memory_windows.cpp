// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/live_memory.h"

#include <windows.h>

#include <psapi.h>

std::size_t liveByteCount()
{
    PROCESS_MEMORY_COUNTERS counters{};
    counters.cb = sizeof(counters);
    K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, counters.cb);
    return counters.PagefileUsage; // the committed private memory, under a name that Wine fills in too
}
