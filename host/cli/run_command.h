// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/cli/command_line.h"
#include "host/cli/exit_code.h"

namespace host {

class Console;

/// Runs the graphical host, which lies beside this program, once for each test and device, passing its output through, and
/// returns the worst code. An interrupt ends the run under way and is answered with 130.
ExitCode runTests(const CommandLine &line, Console &console);

/// The n-th report's name: "a/b.json" becomes "a/b-2.json". `number` counts from 1.
QString numberedReport(const QString &file, int number);

} // namespace host
