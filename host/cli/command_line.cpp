// SPDX-License-Identifier: Apache-2.0
#include "host/cli/command_line.h"

#include "host/cli/option_table.h"

#include <QCommandLineOption>
#include <QCommandLineParser>

#include <algorithm>
#include <array>

namespace host {

namespace {

using Result = std::variant<CommandLine, UsageError>;

/// \param command whose help tells more; null for that of the program
UsageError error(const QString &reason, const CommandRow *command = nullptr)
{
    const QString topic = command == nullptr ? QString() : QLatin1String(command->name) + QStringLiteral(" ");
    return {reason + QStringLiteral(" (try %1--help)").arg(topic)};
}

QString nameOf(const OptionRow &option) { return QLatin1String(option.name); }

void addOptions(QCommandLineParser &parser)
{
    for (const OptionRow &row : optionRows()) {
        QStringList names{nameOf(row)};
        if (row.letter != nullptr)
            names.prepend(QLatin1String(row.letter));
        parser.addOption(QCommandLineOption(names, {}, QLatin1String(row.value)));
    }
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
    const CommandRow *command = findCommand(parser.positionalArguments().value(0));
    if (!unknown.isEmpty())
        return error(QStringLiteral("unknown option '%1'").arg(optionText(unknown.first(), arguments)), command);
    QString reason = parser.errorText();
    if (reason.endsWith(u'.'))
        reason.chop(1);
    return error(reason.replace(0, 1, reason.first(1).toLower()), command);
}

Command commandNamed(const QString &name)
{
    constexpr std::array<std::pair<const char *, Command>, 5> names{{{"list", Command::list},
                                                                     {"info", Command::info},
                                                                     {"run", Command::run},
                                                                     {"report", Command::report},
                                                                     {"clips", Command::clips}}};
    const auto found =
        std::find_if(names.begin(), names.end(), [&name](const auto &entry) { return name == QLatin1String(entry.first); });
    return found == names.end() ? Command::none : found->second;
}

// What an option may be, whatever it goes with.
std::optional<UsageError> checkWords(const OptionRow &option, const QStringList &values, const CommandRow *command)
{
    const QStringList known = wordsOf(option.words);
    for (const QString &value : values) {
        if (!known.isEmpty() && !known.contains(value))
            return error(QStringLiteral("'--%1' does not know '%2' (known: %3)")
                             .arg(nameOf(option), value, known.join(QStringLiteral(", "))),
                         command);
    }
    return std::nullopt;
}

std::optional<UsageError> checkAllWords(const QCommandLineParser &parser)
{
    for (const OptionRow &option : optionRows()) {
        if (option.value == nullptr)
            continue;
        if (const auto wrong = checkWords(option, parser.values(nameOf(option)), nullptr))
            return wrong;
    }
    return std::nullopt;
}

// One of the options that answer at once, by their own order and not by that of the arguments.
std::optional<CommandLine> answerAtOnce(const QCommandLineParser &parser)
{
    constexpr std::array<std::pair<const char *, Command>, 4> answers{{{"help", Command::help},
                                                                       {"version", Command::version},
                                                                       {"print-manual", Command::manual},
                                                                       {"print-completion", Command::completion}}};
    for (const auto &[option, command] : answers) {
        if (!parser.isSet(QLatin1String(option)))
            continue;
        CommandLine line;
        line.command = command;
        const QString topic = parser.positionalArguments().value(0);
        line.topic = findCommand(topic) != nullptr ? topic : QString();
        return line;
    }
    return std::nullopt;
}

std::optional<UsageError> checkArguments(const CommandRow &command, const QStringList &words)
{
    const qsizetype count = command.arguments == nullptr ? 1 : 2;
    if (words.size() > count)
        return error(QStringLiteral("unexpected argument '%1'").arg(words.at(count)), &command);
    if (words.size() < count)
        return error(
            QStringLiteral("'%1' needs its argument: %2").arg(QLatin1String(command.name), QLatin1String(command.arguments)),
            &command);
    const QStringList known = wordsOf(command.words);
    if (!known.isEmpty() && !known.contains(words.at(1)))
        return error(QStringLiteral("'%1' does not know '%2'").arg(QLatin1String(command.name), words.at(1)), &command);
    return std::nullopt;
}

std::optional<UsageError> checkOption(const CommandRow &command, const OptionRow &option, const QStringList &values)
{
    if (!takesOption(command, option))
        return error(QStringLiteral("'--%1' does not go with '%2'").arg(nameOf(option), QLatin1String(command.name)), &command);
    return checkWords(option, values, &command);
}

Result readOptions(const QCommandLineParser &parser, const CommandRow &command, CommandLine line)
{
    for (const OptionRow &option : optionRows()) {
        if (!parser.isSet(nameOf(option)))
            continue;
        const QStringList values = parser.values(nameOf(option));
        if (const auto wrong = checkOption(command, option, values))
            return *wrong;
        line.switches.insert(nameOf(option));
        if (option.value != nullptr)
            line.values.insert(nameOf(option), values);
    }
    line.isJson = line.isSet("json");
    line.isGnuExit = line.isSet("gnu-exit");
    if (line.isSet("config"))
        line.configFolder = line.last("config");
    return line;
}

Result readCommand(const QCommandLineParser &parser)
{
    const QStringList words = parser.positionalArguments();
    if (words.isEmpty())
        return error(QStringLiteral("no command is given"));
    const CommandRow *command = findCommand(words.first());
    if (command == nullptr)
        return error(QStringLiteral("unknown command '%1'").arg(words.first()));
    if (const auto wrong = checkArguments(*command, words))
        return *wrong;
    CommandLine line;
    line.command = commandNamed(words.first());
    line.file = words.value(1);
    return readOptions(parser, *command, line);
}

} // namespace

Result parseCommandLine(const QStringList &arguments)
{
    if (arguments.size() < 2)
        return CommandLine{};
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(arguments))
        return parserError(parser, arguments);
    const auto answer = answerAtOnce(parser);
    if (!answer)
        return readCommand(parser);
    if (answer->command != Command::help) { // a person who asks for help needs it
        if (const auto wrong = checkAllWords(parser))
            return *wrong;
    }
    return *answer;
}

} // namespace host
