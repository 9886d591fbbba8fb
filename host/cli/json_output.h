// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/cli/exit_code.h"

#include <QJsonObject>
#include <QString>

namespace host {

class Console;

/// Prints `document` as the one JSON document of this run, with "schemaVersion" 1 added.
void printJson(Console &console, QJsonObject document);
/// The document of a run that failed: {"schemaVersion", "error": {"code", "message"}}.
void printJsonError(Console &console, ExitCode code, const QString &message);

} // namespace host
