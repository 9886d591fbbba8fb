// SPDX-License-Identifier: Apache-2.0
#include "host/cli/self_check.h"

#include "host/cli/console.h"
#include "host/cli/json_output.h"
#include "host/core/module_library.h"
#include "host/precheck/clip_check.h"
#include "host/translations/translators.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageReader>
#include <QJsonArray>

#include <algorithm>

namespace host {

namespace {

QString beside(const char *name) { return QCoreApplication::applicationDirPath() + u'/' + QLatin1String(name); }

bool hasProgram(const char *name)
{
    const QString path = beside(name);
    return QFileInfo(path).isExecutable() || QFileInfo(path + QStringLiteral(".exe")).isExecutable();
}

void addPictures(QList<SelfCheck> &checks)
{
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    const std::pair<const char *, const char *> needed[] = {{"png", "the dialogs have no pictures"},
                                                            {"gif", "nothing moves while a sound plays"},
                                                            {"svg", "high-contrast icons keep their own colours"}};
    for (const auto &[format, lacking] : needed)
        checks.append({QStringLiteral("pictures: ") + QLatin1String(format), formats.contains(format), QLatin1String(lacking)});
}

void addPrograms(QList<SelfCheck> &checks)
{
    const std::pair<const char *, const char *> needed[] = {{"TamrexDiagnostics", "no test can be run"},
                                                            {"audio_listener", "no test can be run with nobody there"},
                                                            {"volume_guardian", "volumes are not put back after a crash"}};
    for (const auto &[name, lacking] : needed)
        checks.append({QStringLiteral("program: ") + QLatin1String(name), hasProgram(name), QLatin1String(lacking)});
}

void addClips(QList<SelfCheck> &checks)
{
    for (const QLatin1StringView language : translationCodes)
        checks.append({QStringLiteral("clips: ") + language, checkClips(beside("audio_files"), {language}).isIntact(),
                       QStringLiteral("unattended tests in that language are refused")});
}

void print(const QList<SelfCheck> &checks, Console &console)
{
    for (const SelfCheck &check : checks) {
        const QString state = check.isThere ? QStringLiteral("ok") : QStringLiteral("LACKING: ") + check.lacking;
        console.print(check.name.leftJustified(28) + state + u'\n');
    }
}

void printDocument(const QList<SelfCheck> &checks, Console &console)
{
    QJsonArray list;
    for (const SelfCheck &check : checks)
        list.append(QJsonObject{{QStringLiteral("name"), check.name},
                                {QStringLiteral("ok"), check.isThere},
                                {QStringLiteral("lacking"), check.isThere ? QString() : check.lacking}});
    printJson(console, {{QStringLiteral("checks"), list}});
}

} // namespace

QList<SelfCheck> checkInstallation()
{
    QList<SelfCheck> checks;
    ModuleLibrary library;
    checks.append({QStringLiteral("module"), library.load(), library.errorText()});
    addPrograms(checks);
    addPictures(checks);
    addClips(checks);
    return checks;
}

ExitCode runSelfCheck(bool isJson, Console &console)
{
    const QList<SelfCheck> checks = checkInstallation();
    if (isJson)
        printDocument(checks, console);
    else
        print(checks, console);
    const bool isComplete = std::all_of(checks.begin(), checks.end(), [](const SelfCheck &check) { return check.isThere; });
    return isComplete ? ExitCode::success : ExitCode::cannotBePerformed;
}

} // namespace host
