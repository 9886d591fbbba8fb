// SPDX-License-Identifier: Apache-2.0
#include "host/cli/self_check.h"

#include "host/cli/console.h"
#include "host/cli/json_output.h"
#include "host/cli/terminal.h"
#include "host/core/module_library.h"
#include "host/precheck/clip_check.h"
#include "host/precheck/sound_state.h"
#include "host/translations/translators.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>

#include <algorithm>

namespace host {

namespace {

QString beside(const char *name) { return QCoreApplication::applicationDirPath() + u'/' + QLatin1String(name); }

bool hasProgram(const char *name)
{
    const QString path = beside(name);
    return QFileInfo(path).isExecutable() || QFileInfo(path + QStringLiteral(".exe")).isExecutable();
}

constexpr int windowsLimitMs = 60'000;

QList<SelfCheck> checksIn(const QByteArray &line)
{
    QList<SelfCheck> checks;
    const QJsonArray list = QJsonDocument::fromJson(line).array();
    for (const QJsonValue check : list)
        checks.append({check[QLatin1String("name")].toString(), check[QLatin1String("ok")].toBool(),
                       check[QLatin1String("lacking")].toString(), check[QLatin1String("limit")].toBool()});
    return checks;
}

// Only a program with windows knows of fonts and plug-ins. It shows none: what can be shown without a display is told without.
void addWindows(QList<SelfCheck> &checks)
{
    QProcess host;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!environment.contains(QStringLiteral("QT_QPA_PLATFORM")) && !platformWithoutDisplay().isEmpty())
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platformWithoutDisplay());
    host.setProcessEnvironment(environment);
    host.start(beside("TamrexDiagnostics"), {QStringLiteral("--self-check")});
    host.waitForFinished(windowsLimitMs);
    const QList<SelfCheck> found = checksIn(host.readAllStandardOutput());
    checks.append({QStringLiteral("windows"), !found.isEmpty(), QStringLiteral("the graphical host does not start")});
    checks.append(found);
}

void addPrograms(QList<SelfCheck> &checks)
{
    const std::pair<const char *, const char *> needed[] = {{"TamrexDiagnostics", "no test can be run"},
                                                            {"audio_listener", "no test can be run with nobody there"},
                                                            {"audio_speaker", "no microphone can be tested with nobody there"},
                                                            {"volume_guardian", "volumes are not put back after a crash"}};
    for (const auto &[name, lacking] : needed)
        checks.append({QStringLiteral("program: ") + QLatin1String(name), hasProgram(name), QLatin1String(lacking)});
}

void addClips(QList<SelfCheck> &checks)
{
    for (const QLatin1StringView language : translationCodes)
        checks.append({QStringLiteral("clips: ") + language, checkClips(beside("audio_files"), {language}).isIntact(),
                       QStringLiteral("tests in that language are refused")});
    checks.append({QStringLiteral("clips: sentence"), QFileInfo::exists(beside("audio_files/operator/sentence_en_US.wav")),
                   QStringLiteral("no microphone can be tested with nobody there")});
}

void print(const QList<SelfCheck> &checks, Console &console)
{
    for (const SelfCheck &check : checks) {
        const QString fault = check.isLimit ? QStringLiteral("limit: ") : QStringLiteral("LACKING: ");
        const QString state = check.isThere ? QStringLiteral("ok") : fault + check.lacking;
        console.print(check.name.leftJustified(28) + state + u'\n');
    }
}

void printDocument(const QList<SelfCheck> &checks, Console &console)
{
    QJsonArray list;
    for (const SelfCheck &check : checks)
        list.append(QJsonObject{{QStringLiteral("name"), check.name},
                                {QStringLiteral("ok"), check.isThere},
                                {QStringLiteral("limit"), check.isLimit},
                                {QStringLiteral("lacking"), check.isThere ? QString() : check.lacking}});
    printJson(console, {{QStringLiteral("checks"), list}});
}

} // namespace

QList<SelfCheck> checkInstallation()
{
    QList<SelfCheck> checks;
    ModuleLibrary library;
    checks.append({QStringLiteral("module"), library.load(), library.errorText()});
    checks.append({QStringLiteral("sound server"), isSoundServerAnswering(),
                   QStringLiteral("it does not answer: no device can be listed or tested")});
    addPrograms(checks);
    addWindows(checks);
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
    const bool isComplete =
        std::all_of(checks.begin(), checks.end(), [](const SelfCheck &check) { return check.isThere || check.isLimit; });
    return isComplete ? ExitCode::success : ExitCode::cannotBePerformed;
}

} // namespace host
