// SPDX-License-Identifier: Apache-2.0
#include "host/cli/program.h"

#include "host/cli/command_line.h"
#include "host/cli/console.h"
#include "host/cli/help_text.h"
#include "host/cli/info_command.h"
#include "host/cli/json_output.h"
#include "host/cli/list_command.h"
#include "host/cli/maudio_command.h"
#include "host/core/module_library.h"

#include <QDir>
#include <QFileInfo>

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
    console.complain(library.errorText());
    if (isJson)
        printJsonError(console, ExitCode::noModule, library.errorText());
    return ExitCode::noModule;
}

ExitCode runModuleOption(const QStringList &arguments, Console &console)
{
    const QString name = arguments.at(1).mid(moduleOption.size());
    if (name != moduleName)
        return refuse(QStringLiteral("unknown module '%1' (known: -Maudio)").arg(name), console);
    return withModule(false, console,
                      [&](const ModuleLibrary &library) { return runMaudio(library, arguments.mid(2), console); });
}

ExitCode runCommand(const CommandLine &line, Console &console)
{
    if (line.configFolder && !(QFileInfo(*line.configFolder).isDir() && QDir::setCurrent(*line.configFolder)))
        return refuse(QStringLiteral("'%1' is not a folder that can be used (--config)").arg(*line.configFolder), console);
    return withModule(line.isJson, console, [&](const ModuleLibrary &library) {
        return line.command == Command::list ? runList(library, line.isJson, console) : runInfo(library, line.isJson, console);
    });
}

ExitCode runOrdinary(const CommandLine &line, Console &console)
{
    switch (line.command) {
    case Command::none:
        console.explain(usageText());
        return ExitCode::usage;
    case Command::help:
        console.print(helpText());
        return ExitCode::success;
    case Command::version: {
        ModuleLibrary library;
        return runVersion(library, console);
    }
    case Command::list:
    case Command::info:
        break;
    }
    return runCommand(line, console);
}

} // namespace

ExitCode runProgram(const QStringList &arguments, Console &console)
{
    if (arguments.size() > 1 && arguments.at(1).startsWith(moduleOption))
        return runModuleOption(arguments, console);
    const auto parsed = parseCommandLine(arguments);
    if (const auto *error = std::get_if<UsageError>(&parsed))
        return refuse(error->message, console);
    return runOrdinary(std::get<CommandLine>(parsed), console);
}

} // namespace host
