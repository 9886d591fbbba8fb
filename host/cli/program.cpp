// SPDX-License-Identifier: Apache-2.0
#include "host/cli/program.h"

#include "host/cli/clips_command.h"
#include "host/cli/command_line.h"
#include "host/cli/console.h"
#include "host/cli/help_text.h"
#include "host/cli/info_command.h"
#include "host/cli/list_command.h"
#include "host/cli/maudio_command.h"
#include "host/cli/missing_module.h"
#include "host/cli/report_command.h"
#include "host/cli/run_command.h"
#include "host/cli/run_plan.h"
#include "host/cli/self_check.h"
#include "host/core/debug_lines.h"
#include "host/core/module_library.h"

#include <QDir>

namespace host {

namespace {

const QString moduleOption = QStringLiteral("-M");
const QString moduleName = QStringLiteral("audio");

ExitCode refuse(const QString &message, Console &console)
{
    console.complain(message);
    return ExitCode::usage;
}

template <typename Run>
ExitCode withModule(bool isJson, Console &console, const Run &run)
{
    ModuleLibrary library;
    if (library.open())
        return run(library);
    return tellMissingModule(library.errorText(), isJson, console);
}

ExitCode runModuleOption(const QStringList &arguments, Console &console)
{
    const QString name = arguments.at(1).mid(moduleOption.size());
    if (name != moduleName)
        return refuse(QStringLiteral("unknown module '%1' (known: -Maudio)").arg(name), console);
    return withModule(false, console,
                      [&](const ModuleLibrary &library) { return runMaudio(library, arguments.mid(2), console); });
}

ExitCode runModuleCommand(const CommandLine &line, Console &console)
{
    if (line.command == Command::list) {
        ModuleLibrary library;
        return runList(library, line.isJson, console);
    }
    return withModule(line.isJson, console,
                      [&](const ModuleLibrary &library) { return runInfo(library, line.isJson, console); });
}

ExitCode runVersionCommand(Console &console)
{
    ModuleLibrary library;
    return runVersion(library, console);
}

ExitCode explainUsage(Console &console)
{
    console.explain(usageText());
    return ExitCode::usage;
}

ExitCode print(const QString &text, Console &console)
{
    console.print(text);
    return ExitCode::success;
}

ExitCode runOrdinary(const CommandLine &line, Console &console)
{
    switch (line.command) {
    case Command::none:
        return explainUsage(console);
    case Command::help:
        return print(helpText(line.topic), console);
    case Command::version:
        return runVersionCommand(console);
    case Command::manual:
        return print(manualPage(), console);
    case Command::completion:
        return print(bashCompletion(), console);
    case Command::report:
        return convertReports(line, console);
    case Command::clips:
        return verifyClips(line, console);
    case Command::run:
        return runTests(line, console);
    case Command::info:
        return line.isSet("self-check") ? runSelfCheck(line.isJson, console) : runModuleCommand(line, console);
    case Command::list:
        break;
    }
    return runModuleCommand(line, console);
}

// `run` hands the folder to the graphical host, which changes into it by itself.
QString enterFolder(const CommandLine &line)
{
    if (!line.configFolder || line.command == Command::run)
        return {};
    if (const auto wrong = checkConfig(line))
        return wrong->message;
    return QDir::setCurrent(*line.configFolder)
               ? QString()
               : QStringLiteral("'%1' is not a folder that can be used (--config)").arg(*line.configFolder);
}

} // namespace

ProgramEnd runProgram(const QStringList &arguments, Console &console)
{
    if (!arguments.contains(QStringLiteral("--verbose")))
        hideDebugLines();
    if (arguments.size() > 1 && arguments.at(1).startsWith(moduleOption))
        return {runModuleOption(arguments, console), false};
    const auto parsed = parseCommandLine(arguments);
    if (const auto *error = std::get_if<UsageError>(&parsed))
        return {refuse(error->message, console), false};
    const auto &line = std::get<CommandLine>(parsed);
    if (const QString problem = enterFolder(line); !problem.isEmpty())
        return {refuse(problem, console), line.isGnuExit};
    return {runOrdinary(line, console), line.isGnuExit};
}

} // namespace host
