// SPDX-License-Identifier: Apache-2.0
#include "host/cli/clips_command.h"

#include "host/cli/console.h"
#include "host/cli/json_output.h"
#include "host/cli/shown_text.h"
#include "host/precheck/clip_check.h"
#include "host/translations/translators.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>

namespace host {

namespace {

// Of the sentence that is spoken in a microphone run, whatever its language.
const QString operatorFolder = QStringLiteral("operator");

struct LanguageCheck {
    QString language; ///< or `operatorFolder`
    ClipCheck check;
};

QString faultText(ClipFault fault)
{
    switch (fault) {
    case ClipFault::missing:
        return QStringLiteral("missing");
    case ClipFault::differs:
        return QStringLiteral("not the one that was supplied");
    case ClipFault::unlisted:
        break;
    }
    return QStringLiteral("not in the manifest");
}

QString folderOf(const CommandLine &line)
{
    const QString own = QCoreApplication::applicationDirPath() + QStringLiteral("/audio_files");
    return line.isSet("folder") ? line.last("folder") : own;
}

QList<LanguageCheck> checkAll(const CommandLine &line)
{
    const QString folder = folderOf(line);
    QStringList languages;
    for (const QLatin1StringView code : translationCodes)
        languages.append(code);
    if (line.isSet("language"))
        languages = {line.last("language")};
    QList<LanguageCheck> checks;
    for (const QString &language : languages)
        checks.append({language, checkClips(folder, {language})});
    if (!line.isSet("language"))
        checks.append({operatorFolder, checkSentence(folder)});
    return checks;
}

void printText(const QList<LanguageCheck> &checks, Console &console)
{
    for (const LanguageCheck &entry : checks) {
        console.print(QStringLiteral("%1  %2 of %3 clips are as supplied\n")
                          .arg(entry.language)
                          .arg(entry.check.intactCount)
                          .arg(entry.check.intactCount + entry.check.faults.size()));
        for (const FaultyClip &clip : entry.check.faults)
            console.print(QStringLiteral("  %1: %2\n").arg(shownText(clip.file), faultText(clip.fault)));
    }
}

QJsonArray faultList(const ClipCheck &check)
{
    QJsonArray faults;
    for (const FaultyClip &clip : check.faults)
        faults.append(QJsonObject{{QStringLiteral("file"), clip.file}, {QStringLiteral("fault"), faultText(clip.fault)}});
    return faults;
}

void printDocument(const QList<LanguageCheck> &checks, Console &console)
{
    QJsonArray languages;
    QJsonObject document;
    for (const LanguageCheck &entry : checks) {
        QJsonObject object{{QStringLiteral("intact"), entry.check.intactCount},
                           {QStringLiteral("faults"), faultList(entry.check)}};
        if (entry.language == operatorFolder) {
            document.insert(operatorFolder, object);
            continue;
        }
        object.insert(QStringLiteral("language"), entry.language);
        languages.append(object);
    }
    document.insert(QStringLiteral("languages"), languages);
    printJson(console, document);
}

} // namespace

ExitCode verifyClips(const CommandLine &line, Console &console)
{
    const QList<LanguageCheck> checks = checkAll(line);
    if (!checks.first().check.hasManifest) {
        const QString problem = QStringLiteral("there is no manifest.sha256 in '%1' to compare the clips with")
                                    .arg(shownText(QDir::toNativeSeparators(QDir(folderOf(line)).absolutePath())));
        console.complain(problem);
        if (line.isJson)
            printJsonError(console, ExitCode::cannotBePerformed, problem);
        return ExitCode::cannotBePerformed;
    }
    if (line.isJson)
        printDocument(checks, console);
    else
        printText(checks, console);
    for (const LanguageCheck &entry : checks) {
        if (!entry.check.isIntact())
            return ExitCode::failed;
    }
    return ExitCode::success;
}

} // namespace host
