// SPDX-License-Identifier: Apache-2.0
#include "host/cli/missing_module.h"

#include "host/cli/console.h"
#include "host/cli/json_output.h"

namespace host {

ExitCode tellMissingModule(const QString &reason, bool isJson, Console &console)
{
    console.complain(reason);
    if (isJson)
        printJsonError(console, ExitCode::noModule, reason);
    return ExitCode::noModule;
}

} // namespace host
