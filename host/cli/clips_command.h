// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/cli/command_line.h"
#include "host/cli/exit_code.h"

namespace host {

class Console;

/// Compares the clips with their manifest and prints one line a language, or one JSON document.
ExitCode verifyClips(const CommandLine &line, Console &console);

} // namespace host
