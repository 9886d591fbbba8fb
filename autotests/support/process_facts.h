// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>

/// What the running process holds of its system.
namespace process_facts {

struct Facts {
    std::size_t threads = 0;
    std::size_t handles = 0;       ///< descriptors on Linux, handles on Windows
    std::size_t residentBytes = 0; ///< of physical memory
};

Facts now();

std::string text(const Facts &facts);

/// How many windows of the system its threads own, shown or not; 0 where no window belongs to a thread.
int nativeWindowCount();

/// Whether the calling thread lives in a COM apartment; false where there are none.
bool isInApartment();

} // namespace process_facts
