// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/cli/exit_code.h"

#include <QStringList>

namespace host {

class Console;

/// The whole run of the command-line program. `arguments` begin with the program's own path. Needs the application object.
ExitCode runProgram(const QStringList &arguments, Console &console);

} // namespace host
