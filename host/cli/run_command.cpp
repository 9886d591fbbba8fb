// SPDX-License-Identifier: Apache-2.0
#include "host/cli/run_command.h"

#include "host/cli/console.h"
#include "host/cli/interrupt.h"
#include "host/cli/run_plan.h"
#include "host/core/device_list.h"
#include "host/core/module_library.h"
#include "host/precheck/virtual_devices.h"
#include "host/reports/run_report.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
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

// Names of the devices that the user means. The module is gone again before the host opens it.
ExitCode findDevices(const QStringList &wanted, QStringList &names, Console &console)
{
    ModuleLibrary library;
    if (!library.open())
        return refuse(console, library.errorText(), ExitCode::noModule);
    DeviceList list;
    console.tellProgress(QStringLiteral("Reading devices…"));
    if (ostra::SystemComponentManager *manager = library.module()->componentManager())
        list.refresh(*manager);
    for (const QString &device : wanted) {
        const qsizetype position = list.find(device);
        if (position < 0)
            return refuse(console, QStringLiteral("unknown device '%1' (list shows them)").arg(device));
        names.append(list.devices()[position].name);
    }
    return ExitCode::success;
}

ExitCode checkDevices(const CommandLine &line, const QStringList &names, Console &console)
{
    const VirtualDevices devices = line.isSet("allow-virtual") ? VirtualDevices() : readVirtualDevices();
    for (const QString &name : names) {
        if (devices.contains(name))
            return refuse(console,
                          QStringLiteral("'%1' is a virtual device: a verdict on it says nothing about this machine "
                                         "(--allow-virtual tests it nevertheless)")
                              .arg(name),
                          ExitCode::cannotBePerformed);
    }
    return ExitCode::success;
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

ExitCode performOne(const CommandLine &line, const PlannedRun &run, Console &console)
{
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

ExitCode performAll(const CommandLine &line, const QList<PlannedRun> &runs, Console &console)
{
    ExitCode worst = ExitCode::success;
    QList<ExitCode> codes;
    for (const PlannedRun &run : runs) {
        const ExitCode code = performOne(line, run, console);
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
    QStringList devices;
    if (const ExitCode code = findDevices(line.all("device"), devices, console); code != ExitCode::success)
        return code;
    if (const ExitCode code = checkDevices(line, devices, console); code != ExitCode::success)
        return code;
    catchSignals();
    return performAll(line, planRuns(line, devices), console);
}

} // namespace host
