// SPDX-License-Identifier: Apache-2.0
#include "host/cli/info_command.h"

#include "host/cli/console.h"
#include "host/cli/json_output.h"
#include "host/cli/program_name.h"
#include "host/cli/shown_text.h"
#include "host/core/catalogue.h"
#include "host/core/module_library.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

namespace host {

namespace {

constexpr const char *hostVersion = HOST_VERSION;

QStringList commandLineNames(const CatalogueNames &names)
{
    QStringList list;
    for (const std::string &name : names.commandLineNames)
        list.append(QString::fromStdString(name));
    return list;
}

// "Q" is typed as -Q, "quick" as --quick.
QStringList diagnosticOptions(const CatalogueNames &names)
{
    QStringList options = commandLineNames(names);
    for (QString &option : options)
        option.prepend(option.size() == 1 ? QStringLiteral("-") : QStringLiteral("--"));
    return options;
}

QString textEntry(const QString &indent, const QString &title, const QStringList &typed, const CatalogueNames &names)
{
    return shownText(indent + title + typed.join(QStringLiteral(", "))) + u'\n' +
           shownText(indent + QStringLiteral("  name key         ") + QString::fromStdString(names.nameKey)) + u'\n' +
           shownText(indent + QStringLiteral("  description key  ") + QString::fromStdString(names.descriptionKey)) + u'\n';
}

QString catalogueText(const Catalogue &catalogue)
{
    QString text;
    for (const CatalogueDiagnostic &diagnostic : catalogue) {
        text += textEntry({}, QStringLiteral("Diagnostic "), diagnosticOptions(diagnostic.names), diagnostic.names);
        for (const CatalogueTest &test : diagnostic.tests)
            text += textEntry(QStringLiteral("  "), QStringLiteral("Test "), commandLineNames(test.names), test.names);
    }
    return text;
}

QString versionText(const ModuleLibrary &library)
{
    return QStringLiteral("Product version  %1\nHost version     %2\nModule           %3\n\n")
        .arg(library.productVersion(), QLatin1String(hostVersion), shownText(QDir::toNativeSeparators(library.path())));
}

QJsonObject jsonEntry(const ostra::EntityId &id, const CatalogueNames &names)
{
    const QJsonObject identity{{QLatin1String("module"), id.module},
                               {QLatin1String("category"), static_cast<qint64>(id.category)},
                               {QLatin1String("index"), static_cast<qint64>(id.index)}};
    return {{QLatin1String("id"), identity},
            {QLatin1String("nameKey"), QString::fromStdString(names.nameKey)},
            {QLatin1String("descriptionKey"), QString::fromStdString(names.descriptionKey)},
            {QLatin1String("commandLineNames"), QJsonArray::fromStringList(commandLineNames(names))}};
}

QJsonArray jsonCatalogue(const Catalogue &catalogue)
{
    QJsonArray diagnostics;
    for (const CatalogueDiagnostic &diagnostic : catalogue) {
        QJsonArray tests;
        for (const CatalogueTest &test : diagnostic.tests)
            tests.append(jsonEntry(test.id, test.names));
        QJsonObject entry = jsonEntry(diagnostic.id, diagnostic.names);
        entry.insert(QLatin1String("tests"), tests);
        diagnostics.append(entry);
    }
    return diagnostics;
}

} // namespace

ExitCode runInfo(const ModuleLibrary &library, bool isJson, Console &console)
{
    const Catalogue catalogue = readCatalogue(*library.module());
    if (isJson)
        printJson(console, {{QLatin1String("productVersion"), library.productVersion()},
                            {QLatin1String("hostVersion"), QLatin1String(hostVersion)},
                            {QLatin1String("diagnostics"), jsonCatalogue(catalogue)}});
    else
        console.print(versionText(library) + catalogueText(catalogue));
    return ExitCode::success;
}

ExitCode runVersion(ModuleLibrary &library, Console &console)
{
    const bool isLoaded = library.load();
    if (isLoaded)
        console.print(QStringLiteral("%1 %2\n").arg(QLatin1String(programName), library.productVersion()));
    console.print(QStringLiteral("host %1\n").arg(QLatin1String(hostVersion)));
    if (!isLoaded)
        console.complain(library.errorText());
    return isLoaded ? ExitCode::success : ExitCode::noModule;
}

} // namespace host
