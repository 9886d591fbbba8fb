// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/cli/exit_code.h"

#include <QList>
#include <QString>

namespace host {

class Console;

/// One ability of this installation.
struct SelfCheck {
    QString name; ///< such as "pictures: svg"
    bool isThere = false;
    QString lacking; ///< what does not work without it
    /// Without it windows look worse, and every test still comes to its verdict.
    bool isLimit = false;
};

/// Looks for the programs and libraries that belong beside this one, for the clips and the sound server, and asks the graphical
/// host what its windows lack: pictures, texts, fonts. Needs the application object; 62 s at most.
QList<SelfCheck> checkInstallation();

/// Prints them, as text or as a JSON document, and returns 3 when something is lacking that is no mere limit.
ExitCode runSelfCheck(bool isJson, Console &console);

} // namespace host
