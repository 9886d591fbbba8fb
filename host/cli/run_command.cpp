// SPDX-License-Identifier: Apache-2.0
#include "host/cli/run_command.h"

#include "host/cli/console.h"
#include "host/cli/interrupt.h"
#include "host/cli/refused_run.h"
#include "host/cli/run_plan.h"
#include "host/core/catalogue.h"
#include "host/core/device_list.h"
#include "host/core/module_library.h"
#include "host/core/run_reason.h"
#include "host/precheck/virtual_devices.h"
#include "host/reports/run_report.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QTemporaryDir>

#include <optional>

namespace host {

namespace {

constexpr int pollMs = 100;
/// The host gives back the volumes before it ends.
constexpr int endLimitMs = 20'000;

ExitCode refuse(Console &console, const QString &message, ExitCode code = ExitCode::usage)
{
    console.complain(message);
    return code;
}

/// What the runs are about, copied: the module is gone again before the graphical host opens it.
struct Subjects {
    QList<Device> devices;             ///< in the order in which the user named them
    QHash<QString, QString> testNames; ///< key of the name by the test's letter
    VirtualDevices refused;
};

void noteTests(const ModuleLibrary &library, Subjects &subjects)
{
    const Catalogue catalogue = readCatalogue(*library.module());
    for (const CatalogueDiagnostic &diagnostic : catalogue) {
        for (const CatalogueTest &test : diagnostic.tests) {
            if (!test.names.commandLineNames.empty())
                subjects.testNames.insert(QString::fromStdString(test.names.commandLineNames.front()),
                                          QString::fromStdString(test.names.nameKey));
        }
    }
}

ExitCode findSubjects(const CommandLine &line, Subjects &subjects, Console &console)
{
    ModuleLibrary library;
    if (!library.open())
        return refuse(console, library.errorText(), ExitCode::noModule);
    DeviceList list;
    console.tellProgress(QStringLiteral("Reading devices…"));
    if (ostra::SystemComponentManager *manager = library.module()->componentManager())
        list.refresh(*manager);
    const QStringList wanted = line.all("device");
    for (const QString &device : wanted) {
        const qsizetype position = list.find(device);
        if (position < 0)
            return refuse(console, QStringLiteral("unknown device '%1' (list shows them)").arg(device));
        subjects.devices.append(list.devices()[position]);
    }
    noteTests(library, subjects);
    if (!line.isSet("allow-virtual"))
        subjects.refused = readVirtualDevices();
    return ExitCode::success;
}

void tellOfVirtualDevices(const Subjects &subjects, Console &console)
{
    for (const Device &device : subjects.devices) {
        if (const char *refusal = virtualRefusal(subjects.refused, device.name))
            console.complain(reasonWords(refusal, {device.name}) +
                             QStringLiteral(" (--allow-virtual tests it nevertheless)"));
    }
}

std::optional<ExitCode> interruption()
{
    const int number = caughtSignal();
    if (number == 0)
        return std::nullopt;
    return number == interruptSignal ? ExitCode::interrupted : ExitCode::terminated;
}

ExitCode codeOf(const QProcess &process, Console &console)
{
    if (process.exitStatus() == QProcess::NormalExit)
        return static_cast<ExitCode>(process.exitCode());
    return refuse(console, QStringLiteral("the graphical host broke down (has it a display?)"), ExitCode::notCompleted);
}

// The terminal has sent the interrupt to the host as well; a request to this process alone is passed on.
ExitCode endEarly(QProcess &process, ExitCode code)
{
    process.terminate();
    if (!process.waitForFinished(endLimitMs)) {
        process.kill();
        process.waitForFinished(endLimitMs);
    }
    return code;
}

ExitCode perform(const QStringList &arguments, Console &console)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/TamrexDiagnostics"), arguments);
    if (!process.waitForStarted())
        return refuse(console, QStringLiteral("the graphical host cannot be started: %1").arg(process.errorString()),
                      ExitCode::noModule);
    while (process.state() != QProcess::NotRunning) {
        process.waitForFinished(pollMs);
        if (const auto code = interruption())
            return endEarly(process, *code);
    }
    return codeOf(process, console);
}

// A language for this run alone: the user's own stays as it is.
bool writeLanguage(const QString &folder, const QString &code)
{
    QFile file(QDir(folder).filePath(QStringLiteral("config.ini")));
    const QByteArray text = "[LANGUAGE]\nDEFAULT_LANGUAGE=" + code.toLatin1() + '\n';
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

ExitCode performOne(const CommandLine &line, const Subjects &subjects, const PlannedRun &run, Console &console)
{
    if (const char *refusal = virtualRefusal(subjects.refused, run.device)) {
        reportRefusal(line, run, subjects.devices[run.deviceNumber - 1], subjects.testNames.value(run.test),
                      reasonWords(refusal, {run.device}), console);
        return ExitCode::cannotBePerformed;
    }
    if (run.language.isEmpty())
        return perform(argumentsOf(line, run, line.last("config")), console);
    const QTemporaryDir folder;
    if (!folder.isValid() || !writeLanguage(folder.path(), run.language))
        return refuse(console, QStringLiteral("the run's language cannot be written: %1").arg(folder.errorString()),
                      ExitCode::notCompleted);
    return perform(argumentsOf(line, run, folder.path()), console);
}

void printOutcome(const PlannedRun &run, ExitCode code, Console &console)
{
    console.print(QStringLiteral("%1  %2  %3  '%4'  %5\n")
                      .arg(QString::number(run.number).rightJustified(3), run.test,
                           run.language.isEmpty() ? QStringLiteral("-") : run.language, run.device,
                           resultName(static_cast<std::uint32_t>(code))));
}

ExitCode performAll(const CommandLine &line, const Subjects &subjects, const QList<PlannedRun> &runs, Console &console)
{
    ExitCode worst = ExitCode::success;
    QList<ExitCode> codes;
    for (const PlannedRun &run : runs) {
        const ExitCode code = performOne(line, subjects, run, console);
        worst = worseOf(worst, code);
        codes.append(code);
        if (interruption() || code == ExitCode::usage)
            return code;
    }
    for (qsizetype index = 0; runs.size() > 1 && index < runs.size(); ++index)
        printOutcome(runs[index], codes[index], console);
    return worst;
}

} // namespace

ExitCode runTests(const CommandLine &line, Console &console)
{
    if (const auto wrong = checkRun(line))
        return refuse(console, wrong->message);
    Subjects subjects;
    if (const ExitCode code = findSubjects(line, subjects, console); code != ExitCode::success)
        return code;
    tellOfVirtualDevices(subjects, console);
    QStringList devices;
    for (const Device &device : subjects.devices)
        devices.append(device.name);
    catchSignals();
    return performAll(line, subjects, planRuns(line, devices), console);
}

} // namespace host
