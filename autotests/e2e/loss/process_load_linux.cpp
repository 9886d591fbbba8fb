// SPDX-License-Identifier: Apache-2.0
#include "autotests/e2e/loss/process_load.h"

#include <filesystem>
#include <iterator>

namespace process_load {

namespace {

int entryCount(const char *folder)
{
    return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator()));
}

} // namespace

int threadCount() { return entryCount("/proc/self/task"); }

int handleCount() { return entryCount("/proc/self/fd"); }

bool keepsFirstUse() { return false; }

bool waitsForSuspended() { return true; }

const char *shell() { return "/bin/sh"; }

} // namespace process_load
