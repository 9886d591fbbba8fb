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

} // namespace process_facts
