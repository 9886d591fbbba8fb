// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/cli/command_line.h"
#include "host/cli/exit_code.h"

namespace host {

class Console;

/// Runs the graphical host, which lies beside this program, once for each test, device and language, passing its output
/// through, and returns the worst code. An interrupt ends the run under way and is answered with 130.
ExitCode runTests(const CommandLine &line, Console &console);

} // namespace host
