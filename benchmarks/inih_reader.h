// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "utils/config_reader.h"

#include <string>

namespace bench {

/// Reads a file by inih, told to take lines of any length, into the same table of sections and keys.
void readWithInih(const std::string &fileName, ostra::utils::IniConfiguration &configuration);

} // namespace bench
