// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/process_leftovers.h"

#include <filesystem>
#include <iterator>

int runningThreadCount()
{
    const std::filesystem::directory_iterator threads("/proc/self/task");
    return static_cast<int>(std::distance(begin(threads), end(threads)));
}

int nativeWindowCount() { return 0; }

bool isInApartment() { return false; }
