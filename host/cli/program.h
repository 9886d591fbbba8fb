// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/cli/exit_code.h"

#include <QStringList>

namespace host {

class Console;

/// How a run ended, and whether GNU's codes were asked for.
struct ProgramEnd {
    ExitCode code = ExitCode::success;
    bool isGnuExit = false;
};

/// The whole run of the command-line program. `arguments` begin with the program's own path. Needs the application object.
ProgramEnd runProgram(const QStringList &arguments, Console &console);

} // namespace host
