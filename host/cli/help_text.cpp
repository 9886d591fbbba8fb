// SPDX-License-Identifier: Apache-2.0
#include "host/cli/help_text.h"

#include "host/cli/option_table.h"
#include "host/cli/program_name.h"

namespace host {

namespace {

constexpr qsizetype textColumn = 22;
constexpr qsizetype textWidth = 98;

constexpr const char *usage = R"(Usage: TamrexDiagnosticsCLI COMMAND [OPTIONS]
       TamrexDiagnosticsCLI -Maudio [diagnostic]"[test(s)]" [device id(s)]
)";

constexpr const char *moduleHelp = R"(
The audio module's own command line:
  -Maudio [help]      the audio module's own help
  -Maudio -Q          chooses all tests of the audio diagnostic (also: --quick)
  -Maudio -Q"pm"      chooses tests by letter (also: --quick="p", -Q"p,m", names separated by commas)

Tests that need a user do not run on it: they answer 3. run performs them, or the graphical host.
A device id is a device's exact name or its number, both as list shows them; a name goes before a number.
After "--" a device name may begin with "-".

Environment:
  NO_COLOR            when set to any text, no bold header on a terminal
)";

// In lines of at most `textWidth` columns, each after the first behind `margin` columns.
QString wrapped(const QString &text, qsizetype margin = textColumn)
{
    QString result;
    qsizetype column = margin;
    for (const QString &word : text.split(u' ')) {
        const bool isFirst = column == margin;
        if (!isFirst && column + 1 + word.size() > textWidth) {
            result += u'\n' + QString(margin, u' ');
            column = margin;
        } else if (!isFirst) {
            result += u' ';
            ++column;
        }
        result += word;
        column += word.size();
    }
    return result;
}

QString entry(const QString &title, const QString &text)
{
    const QString head = QStringLiteral("  ") + title;
    const QString gap =
        head.size() < textColumn - 1 ? QString(textColumn - head.size(), u' ') : u'\n' + QString(textColumn, u' ');
    return head + gap + wrapped(text) + u'\n';
}

QString optionTitle(const OptionRow &option)
{
    QString title;
    if (option.letter != nullptr)
        title = QStringLiteral("-%1, ").arg(QLatin1String(option.letter));
    title += QStringLiteral("--") + QLatin1String(option.name);
    return option.value == nullptr ? title : title + u' ' + QLatin1String(option.value);
}

QString commandTitle(const CommandRow &command)
{
    const QString name = QLatin1String(command.name);
    return command.arguments == nullptr ? name : name + u' ' + QLatin1String(command.arguments);
}

QString optionText(const OptionRow &option, bool isForAll)
{
    QString text = QLatin1String(option.explanation);
    if (isForAll && option.commands != nullptr)
        text.prepend(wordsOf(option.commands).join(QStringLiteral(", ")) + QStringLiteral(": "));
    return option.mayRepeat ? text + QStringLiteral("; may be repeated") : text;
}

QString examplesOf(const CommandRow &command)
{
    QString text;
    for (const QString &example : wordsOf(command.examples, u'\n'))
        text += QStringLiteral("  %1 %2\n").arg(QLatin1String(programName), example);
    return text;
}

QString exitCodes()
{
    QString text = QStringLiteral("\nExit codes:\n");
    for (const ExitCodeRow &row : exitCodeRows())
        text += QStringLiteral("  %1  %2\n").arg(row.code, 3).arg(QLatin1String(row.meaning));
    return text;
}

QString topicText(const CommandRow &command)
{
    QString text = QStringLiteral("Usage: %1 %2 [OPTIONS]\n\n").arg(QLatin1String(programName), commandTitle(command));
    for (const QString &sentence : wordsOf(command.explanation, u'\n'))
        text += wrapped(sentence, 0) + u'\n';
    text += QStringLiteral("\nOptions:\n");
    for (const OptionRow &option : optionRows()) {
        if (takesOption(command, option))
            text += entry(optionTitle(option), optionText(option, false));
    }
    return text + QStringLiteral("\nExamples:\n") + examplesOf(command) + exitCodes();
}

} // namespace

QString usageText() { return QLatin1String(usage) + QStringLiteral("Try 'TamrexDiagnosticsCLI --help' for more.\n"); }

QString helpText(const QString &topic)
{
    if (const CommandRow *command = findCommand(topic))
        return topicText(*command);
    QString text =
        QLatin1String(usage) +
        QStringLiteral(
            "\nLists the audio output devices of this machine, and tests them with the audio module.\n\nCommands:\n");
    for (const CommandRow &command : commandRows())
        text += entry(commandTitle(command), QLatin1String(command.explanation));
    text += QStringLiteral("\nOptions:\n");
    for (const OptionRow &option : optionRows())
        text += entry(optionTitle(option), optionText(option, true));
    text += QLatin1String(moduleHelp) + QStringLiteral("\nExamples:\n");
    for (const CommandRow &command : commandRows())
        text += examplesOf(command);
    return text + QStringLiteral("  TamrexDiagnosticsCLI -Maudio -Q\"p\" 0 \"USB Headset\"\n") + exitCodes();
}

} // namespace host
