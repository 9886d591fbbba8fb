// SPDX-License-Identifier: Apache-2.0
#include "host/cli/command_line.h"

#include <QCommandLineOption>
#include <QCommandLineParser>

#include <algorithm>

namespace host {

namespace {

const QString help = QStringLiteral("help");
const QString version = QStringLiteral("version");
const QString json = QStringLiteral("json");
const QString config = QStringLiteral("config");

void addOptions(QCommandLineParser &parser)
{
    parser.addOption(QCommandLineOption(QStringList{QStringLiteral("h"), help}));
    parser.addOption(QCommandLineOption(version));
    parser.addOption(QCommandLineOption(json));
    parser.addOption(QCommandLineOption(config, {}, QStringLiteral("DIR")));
}

// The parser gives the bare name: "x" stands for "-x", one of "-vx", "--x" and "--x=1".
QString optionText(const QString &name, const QStringList &arguments)
{
    const QString longOption = QStringLiteral("--") + name;
    const bool isLong = std::any_of(arguments.begin(), arguments.end(), [&longOption](const QString &argument) {
        return argument == longOption || argument.startsWith(longOption + u'=');
    });
    return isLong ? longOption : u'-' + name;
}

UsageError parserError(const QCommandLineParser &parser, const QStringList &arguments)
{
    const QStringList unknown = parser.unknownOptionNames();
    if (!unknown.isEmpty())
        return {QStringLiteral("unknown option '%1' (try --help)").arg(optionText(unknown.first(), arguments))};
    QString reason = parser.errorText();
    if (reason.endsWith(u'.'))
        reason.chop(1);
    return {QStringLiteral("%1 (try --help)").arg(reason.replace(0, 1, reason.first(1).toLower()))};
}

Command commandNamed(const QString &name)
{
    if (name == QLatin1String("list"))
        return Command::list;
    return name == QLatin1String("info") ? Command::info : Command::none;
}

std::variant<CommandLine, UsageError> readCommand(const QCommandLineParser &parser)
{
    const QStringList words = parser.positionalArguments();
    CommandLine line{words.isEmpty() ? Command::none : commandNamed(words.first()), parser.isSet(json), {}};
    if (words.isEmpty())
        return UsageError{QStringLiteral("no command is given (try --help)")};
    if (line.command == Command::none)
        return UsageError{QStringLiteral("unknown command '%1' (try --help)").arg(words.first())};
    if (words.size() > 1)
        return UsageError{QStringLiteral("unexpected argument '%1' (try --help)").arg(words.at(1))};
    if (parser.isSet(config) && line.command != Command::list)
        return UsageError{QStringLiteral("'--config' goes with 'list' only (try --help)")};
    if (parser.isSet(config))
        line.configFolder = parser.value(config);
    return line;
}

} // namespace

std::variant<CommandLine, UsageError> parseCommandLine(const QStringList &arguments)
{
    if (arguments.size() < 2)
        return CommandLine{};
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(arguments))
        return parserError(parser, arguments);
    if (parser.isSet(help))
        return CommandLine{Command::help, false, {}};
    if (parser.isSet(version))
        return CommandLine{Command::version, false, {}};
    return readCommand(parser);
}

} // namespace host
