// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/cli/exit_code.h"

#include <QStringList>

namespace host {

class Console;
class ModuleLibrary;

/// Follows the arguments after "-Maudio": prints the module's help text, or checks a choice of tests and devices and answers
/// that it needs the graphical host. `library` is open.
ExitCode runMaudio(const ModuleLibrary &library, const QStringList &arguments, Console &console);

} // namespace host
