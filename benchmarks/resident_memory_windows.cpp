// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/resident_memory.h"

#include <windows.h>

#include <psapi.h>

namespace bench {

double residentKilobytes()
{
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<double>(counters.WorkingSetSize) / 1024;
}

} // namespace bench
