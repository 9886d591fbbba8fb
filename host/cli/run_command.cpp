// SPDX-License-Identifier: Apache-2.0
#include "host/cli/run_command.h"

#include "host/cli/console.h"
#include "host/cli/interrupt.h"
#include "host/core/device_list.h"
#include "host/core/module_library.h"
#include "host/precheck/virtual_devices.h"
#include "host/reports/report_formats.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>

#include <optional>

namespace host {

namespace {

constexpr int pollMs = 100;
/// The host gives back the volumes before it ends.
constexpr int endLimitMs = 20'000;

struct PlannedRun {
    QString test;
    QString device;
};

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

QList<PlannedRun> plan(const CommandLine &line, const QStringList &devices)
{
    const QStringList tests = line.isSet("test") ? line.all("test") : QStringList{QStringLiteral("p")};
    QList<PlannedRun> runs;
    for (const QString &test : tests) {
        for (const QString &device : devices)
            runs.append({test, device});
    }
    return runs;
}

QStringList argumentsOf(const CommandLine &line, const PlannedRun &run, int number)
{
    const QString source = line.isSet("listen") ? line.last("listen") : QStringLiteral("Monitor of ") + run.device;
    QStringList arguments{QStringLiteral("--unattended"), QStringLiteral("--test=") + run.test,
                          QStringLiteral("--device=") + run.device, QStringLiteral("--listen=") + source};
    for (const char *option : {"screenshots", "language", "config"}) {
        if (line.isSet(option))
            arguments.append(QStringLiteral("--%1=%2").arg(QLatin1String(option), line.last(option)));
    }
    for (const char *option : {"microphone", "speak-through"}) {
        if (run.test == QLatin1String("m") && line.isSet(option))
            arguments.append(QStringLiteral("--%1=%2").arg(QLatin1String(option), line.last(option)));
    }
    for (const QString &file : line.all("report"))
        arguments.append(QStringLiteral("--report=") + (number > 0 ? numberedReport(file, number) : file));
    return arguments;
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

ExitCode performAll(const CommandLine &line, const QList<PlannedRun> &runs, Console &console)
{
    ExitCode worst = ExitCode::success;
    int number = 0;
    for (const PlannedRun &run : runs) {
        number = runs.size() > 1 ? number + 1 : 0;
        const ExitCode code = perform(argumentsOf(line, run, number), console);
        worst = worseOf(worst, code);
        if (interruption() || code == ExitCode::usage)
            return code;
    }
    return worst;
}

std::optional<UsageError> checkLine(const CommandLine &line)
{
    if (!line.isSet("device"))
        return UsageError{QStringLiteral("'run' needs '--device NAME' (list shows them)")};
    if (line.isSet("config") && line.isSet("language"))
        return UsageError{QStringLiteral("'--language' and '--config' exclude each other")};
    for (const char *option : {"microphone", "speak-through"}) {
        if (line.isSet(option) && !line.all("test").contains(QStringLiteral("m")))
            return UsageError{QStringLiteral("'--%1' goes with '--test m' only").arg(QLatin1String(option))};
    }
    for (const QString &file : line.all("report")) {
        if (!reportFormatOf(file))
            return UsageError{QStringLiteral("the report '%1' cannot be written: %2").arg(file, reportSuffixes())};
    }
    return std::nullopt;
}

} // namespace

QString numberedReport(const QString &file, int number)
{
    const QString suffix = QFileInfo(file).suffix();
    return QStringLiteral("%1-%2.%3").arg(file.chopped(suffix.size() + 1), QString::number(number), suffix);
}

ExitCode runTests(const CommandLine &line, Console &console)
{
    if (const auto wrong = checkLine(line))
        return refuse(console, wrong->message);
    QStringList devices;
    if (const ExitCode code = findDevices(line.all("device"), devices, console); code != ExitCode::success)
        return code;
    if (const ExitCode code = checkDevices(line, devices, console); code != ExitCode::success)
        return code;
    catchSignals();
    return performAll(line, plan(line, devices), console);
}

} // namespace host
