// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/process_facts.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <unistd.h>

namespace process_facts {

namespace {

std::size_t entryCount(const char *folder)
{
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

} // namespace

Facts now()
{
    std::size_t pages = 0;
    std::size_t residentPages = 0;
    std::ifstream("/proc/self/statm") >> pages >> residentPages;
    return {entryCount("/proc/self/task"), entryCount("/proc/self/fd"),
            residentPages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE))};
}

std::string text(const Facts &facts)
{
    return std::to_string(facts.threads) + " threads, " + std::to_string(facts.handles) + " descriptors, " +
           std::to_string(facts.residentBytes / 1024) + " KiB";
}

int nativeWindowCount() { return 0; }

bool isInApartment() { return false; }

} // namespace process_facts
