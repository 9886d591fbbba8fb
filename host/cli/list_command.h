// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/cli/exit_code.h"

namespace host {

class Console;
class ModuleLibrary;

/// Prints the machine's audio output devices and its inputs as a table or as a JSON document. Opens `library`, unless the sound
/// server does not answer. A machine without an output is no error: an empty list and a note on standard error.
ExitCode runList(ModuleLibrary &library, bool isJson, Console &console);

} // namespace host
