// SPDX-License-Identifier: Apache-2.0
#include "host/cli/run_command.h"

#include "host/cli/console.h"
#include "host/cli/host_process.h"
#include "host/cli/interrupt.h"
#include "host/cli/refused_run.h"
#include "host/cli/run_plan.h"
#include "host/core/capture_source.h"
#include "host/core/catalogue.h"
#include "host/core/device_list.h"
#include "host/core/module_library.h"
#include "host/core/run_reason.h"
#include "host/precheck/run_names.h"
#include "host/precheck/sound_state.h"
#include "host/precheck/virtual_devices.h"
#include "host/reports/run_report.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QTemporaryDir>

#include <algorithm>

namespace host {

namespace {

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
    QString lacking; ///< why no run at all can be performed; empty: one may be

    const Device &of(const PlannedRun &run) const { return devices[run.deviceNumber - 1]; }
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

// A machine without its card is no mistake of the user, who wants it in the reports.
void noteLacking(const CommandLine &line, Subjects &subjects, Console &console)
{
    for (const QString &device : line.all("device"))
        subjects.devices.append(Device{device, {}, {}});
    subjects.lacking = reasonWords(noOutputReason());
    console.complain(subjects.lacking);
}

QString findDevices(const CommandLine &line, const DeviceList &list, Subjects &subjects)
{
    QStringList known;
    for (const Device &device : list.devices())
        known.append(device.name);
    for (const QString &device : line.all("device")) {
        const qsizetype position = list.find(device);
        if (position < 0)
            return unknownName(QStringLiteral("device"), device, known);
        subjects.devices.append(list.devices()[position]);
    }
    return wrongName({systemSource(line.last("listen")), line.last("microphone"), line.last("speak-through")}, known);
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
    noteTests(library, subjects);
    if (list.devices().isEmpty()) {
        noteLacking(line, subjects, console);
        return ExitCode::success;
    }
    if (const QString wrong = findDevices(line, list, subjects); !wrong.isEmpty())
        return refuse(console, wrong);
    if (!line.isSet("allow-virtual"))
        subjects.refused = readVirtualDevices();
    return ExitCode::success;
}

void tellOfVirtualDevices(const Subjects &subjects, Console &console)
{
    for (const Device &device : subjects.devices) {
        if (const char *refusal = virtualRefusal(subjects.refused, device.name))
            console.complain(reasonWords(refusal, {device.name}) + QStringLiteral(" (--allow-virtual tests it nevertheless)"));
    }
}

// A language for this run alone: the user's own stays as it is.
bool writeLanguage(const QString &folder, const QString &code)
{
    QFile file(QDir(folder).filePath(QStringLiteral("config.ini")));
    const QByteArray text = "[LANGUAGE]\nDEFAULT_LANGUAGE=" + code.toLatin1() + '\n';
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

// The graphical host reads the devices anew before each run.
bool isGone(const QString &device)
{
    ModuleLibrary library;
    DeviceList list;
    if (!library.open() || library.module()->componentManager() == nullptr)
        return false;
    list.refresh(*library.module()->componentManager());
    const QList<Device> &devices = list.devices();
    return std::none_of(devices.begin(), devices.end(), [&device](const Device &other) { return other.name == device; });
}

HostEnd performHere(const CommandLine &line, const PlannedRun &run, const QString &configFolder, Console &console)
{
    const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/TamrexDiagnostics");
    const HostEnd end = performHost(program, argumentsOf(line, run, configFolder), console);
    if (end.code != ExitCode::usage || !isGone(run.device))
        return end;
    const QString reason = reasonWords("REASON_DEVICE_GONE", {run.device});
    console.complain(reason);
    return {ExitCode::cannotBePerformed, reason};
}

HostEnd performOne(const CommandLine &line, const Subjects &subjects, const PlannedRun &run, Console &console)
{
    if (!subjects.lacking.isEmpty())
        return {ExitCode::cannotBePerformed, subjects.lacking};
    if (const char *refusal = virtualRefusal(subjects.refused, run.device))
        return {ExitCode::cannotBePerformed, reasonWords(refusal, {run.device})};
    if (run.language.isEmpty())
        return performHere(line, run, line.last("config"), console);
    const QTemporaryDir folder;
    if (folder.isValid() && writeLanguage(folder.path(), run.language))
        return performHere(line, run, folder.path(), console);
    const QString reason = QStringLiteral("the run's language cannot be written: %1").arg(folder.errorString());
    console.complain(reason);
    return {ExitCode::notCompleted, reason};
}

void printOutcome(const PlannedRun &run, ExitCode code, Console &console)
{
    console.print(
        QStringLiteral("%1  %2  %3  '%4'  %5\n")
            .arg(QString::number(run.number).rightJustified(3), run.test,
                 run.language.isEmpty() ? QStringLiteral("-") : run.language, run.device,
                 code == ExitCode::usage ? QStringLiteral("wrong usage") : resultName(static_cast<std::uint32_t>(code))));
}

// A run that cannot be, or that comes to no end, keeps none of the others from being.
ExitCode performAll(const CommandLine &line, const Subjects &subjects, const QList<PlannedRun> &runs, Console &console)
{
    ExitCode worst = ExitCode::success;
    QList<ExitCode> codes;
    for (const PlannedRun &run : runs) {
        const HostEnd end = performOne(line, subjects, run, console);
        if (!end.reason.isEmpty())
            reportWithoutHost(line, run, {subjects.of(run), subjects.testNames.value(run.test), end}, console);
        if (const auto code = interruption())
            return *code;
        worst = worseOf(worst, end.code);
        codes.append(end.code);
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
