// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/cli/exit_code.h"

namespace host {

class Console;
class ModuleLibrary;

/// Prints versions and catalogue as text or as a JSON document. `library` is open.
ExitCode runInfo(const ModuleLibrary &library, bool isJson, Console &console);
/// Prints the versions only; the module is loaded but not started. Without it, the host's own version alone.
ExitCode runVersion(ModuleLibrary &library, Console &console);

} // namespace host
