// SPDX-License-Identifier: Apache-2.0
#include "host/cli/refused_run.h"

#include "host/cli/console.h"
#include "host/core/language_setting.h"
#include "host/core/module_library.h"
#include "host/precheck/endpoint_look.h"
#include "host/precheck/machine.h"
#include "host/reports/run_report.h"
#include "host/translations/key_sentences.h"
#include "host/translations/translators.h"

#include <QDir>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace host {

namespace {

// Of the graphical host, whose setting it is.
QString ownFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Tamrex/TamrexDiagnostics");
}

RunRecord recordOf(const CommandLine &line, const PlannedRun &run, const MissedRun &missed)
{
    RunRecord record;
    record.testLetter = run.test;
    record.testNameKey = missed.testNameKey;
    record.device = missed.device;
    record.microphone = run.test == QLatin1String("m") ? line.last("microphone") : QString();
    record.language = languageOf(line, run);
    record.startedUtc = QDateTime::currentDateTimeUtc();
    record.endedUtc = record.startedUtc;
    record.machine = readMachine();
    record.machine.programVersion = QStringLiteral(HOST_VERSION);
    if (ModuleLibrary module; module.load())
        record.machine.moduleVersion = module.productVersion();
    noteVolumes(record, lookAtEndpoints());
    record.wasModuleCalled = false;
    record.code = static_cast<std::uint32_t>(missed.end.code);
    record.reason = missed.end.reason;
    record.isUnattended = true;
    record.listenedTo = sourceOf(line, run);
    return record;
}

} // namespace

// The reader of the setting makes its folder the current one, and the user's files are named from where the user is.
QString languageOf(const CommandLine &line, const PlannedRun &run)
{
    if (!run.language.isEmpty())
        return run.language;
    const QTemporaryDir empty;
    const auto back = qScopeGuard([before = QDir::currentPath()] { QDir::setCurrent(before); });
    LanguageSetting setting;
    const QString folder = line.isSet("config") ? line.last("config") : ownFolder();
    if (!setting.useForeignFolder(folder))
        setting.useForeignFolder(empty.path()); // where nothing is set it is the system's
    return setting.code();
}

void reportWithoutHost(const CommandLine &line, const PlannedRun &run, const MissedRun &missed, Console &console)
{
    const QStringList files = reportsOf(line, run);
    if (files.isEmpty())
        return;
    const RunRecord record = recordOf(line, run, missed);
    installTranslators(record.language);
    for (const QString &file : files) {
        QString problem;
        if (!writeRunReport(record, file, &problem, [](const QString &key) { return keySentences(key).join(u' '); }))
            console.complain(problem);
    }
}

} // namespace host
