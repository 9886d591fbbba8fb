// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/inih_reader.h"

#include <ini.h>

namespace bench {

namespace {

int store(void *user, const char *section, const char *name, const char *value)
{
    auto &configuration = *static_cast<ostra::utils::IniConfiguration *>(user);
    configuration[section].emplace(name, value);
    return 1;
}

// As the distribution builds it, the limits are variables: 200 bytes on the stack unless told otherwise.
void allowLongLines()
{
    ini_use_stack = false;
    ini_allow_realloc = true;
    ini_max_line = 64 * 1024 * 1024;
}

} // namespace

void readWithInih(const std::string &fileName, ostra::utils::IniConfiguration &configuration)
{
    allowLongLines();
    ini_parse(fileName.c_str(), &store, &configuration);
}

} // namespace bench
