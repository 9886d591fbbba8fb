// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/cli/command_line.h"
#include "host/cli/exit_code.h"

namespace host {

class Console;

/// Converts a report in JSON into the formats of the named files, or prints it as text.
ExitCode convertReports(const CommandLine &line, Console &console);

} // namespace host
