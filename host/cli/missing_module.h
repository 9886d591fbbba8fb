// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/cli/exit_code.h"

class QString;

namespace host {

class Console;

/// Says why the module cannot be used, as a document too where one is wanted, and returns `noModule`.
ExitCode tellMissingModule(const QString &reason, bool isJson, Console &console);

} // namespace host
