// SPDX-License-Identifier: Apache-2.0
#include "host/cli/json_output.h"

#include "host/cli/console.h"

#include <QJsonDocument>

namespace host {

namespace {

constexpr int schemaVersion = 1;

} // namespace

void printJson(Console &console, QJsonObject document)
{
    document.insert(QLatin1String("schemaVersion"), schemaVersion);
    console.print(QJsonDocument(document).toJson(QJsonDocument::Indented));
}

void printJsonError(Console &console, ExitCode code, const QString &message)
{
    const QJsonObject error{{QLatin1String("code"), static_cast<int>(code)}, {QLatin1String("message"), message}};
    printJson(console, {{QLatin1String("error"), error}});
}

} // namespace host
