// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "utils/config_line.h"

#include <map>
#include <string>

/// The configuration file as a table of sections and keys.
///
/// Threading: callable from any thread on tables of the caller's own. Errors: nothing but std::bad_alloc leaves
/// these functions, and nothing is logged.
namespace ostra::utils {

/// Section name (upper case) to key name (upper case) to value (as written), ordered byte by byte.
using IniConfiguration = std::map<std::string, std::map<std::string, std::string>>;

/// Reads the file `fileName` (UTF-8; relative to the process's current directory) into `configuration`.
///
/// Every carriage return and a leading UTF-8 byte order mark are dropped, malformed UTF-8 becomes U+FFFD, Ctrl-Z and
/// NUL are ordinary characters. Reading stops at the first rejected line; what was read before it stays. A file that
/// cannot be opened (missing, a directory) leaves `configuration` alone, an empty file adds the empty-named section.
/// Sections that `configuration` already holds count as defined.
ConfigParseResult readConfigFile(const std::string &fileName, IniConfiguration &configuration);

/// The stored value, or the empty text when section or key is absent. Names are compared exactly: pass upper case.
std::string getConfigValue(const IniConfiguration &configuration, const std::string &section, const std::string &key);

} // namespace ostra::utils
