// SPDX-License-Identifier: Apache-2.0
#include "host/cli/help_text.h"
#include "host/cli/option_table.h"
#include "host/cli/program_name.h"

namespace host {

namespace {

// A hyphen of an option must stay one that can be copied, and a line must not begin with a request.
QString troff(QString text)
{
    text.replace(u'\\', QStringLiteral("\\e")).replace(u'-', QStringLiteral("\\-"));
    return text.startsWith(u'.') || text.startsWith(u'\'') ? QStringLiteral("\\&") + text : text;
}

QString tagged(const QString &title, const QString &text) { return QStringLiteral(".TP\n%1\n%2\n").arg(title, troff(text)); }

QString bold(const char *text) { return QStringLiteral("\\fB%1\\fR").arg(troff(QLatin1String(text))); }

QString italic(const char *text) { return QStringLiteral("\\fI%1\\fR").arg(troff(QLatin1String(text))); }

QString optionTag(const OptionRow &option)
{
    QString tag;
    if (option.letter != nullptr)
        tag = QStringLiteral("\\fB\\-%1\\fR, ").arg(QLatin1String(option.letter));
    tag += QStringLiteral("\\fB\\-\\-%1\\fR").arg(troff(QLatin1String(option.name)));
    return option.value == nullptr ? tag : tag + u' ' + italic(option.value);
}

QString manualCommands()
{
    QString text = QStringLiteral(".SH COMMANDS\n");
    for (const CommandRow &command : commandRows()) {
        const QString argument = command.arguments == nullptr ? QString() : u' ' + italic(command.arguments);
        text += tagged(bold(command.name) + argument, QLatin1String(command.explanation));
    }
    return text + tagged(bold("-Maudio"), QStringLiteral("The audio module's own command line. -Maudio help explains it."));
}

QString manualOptions()
{
    QString text = QStringLiteral(".SH OPTIONS\n");
    for (const OptionRow &option : optionRows()) {
        const QString with = wordsOf(option.commands).join(QStringLiteral(", "));
        QString explanation = QLatin1String(option.explanation);
        if (!with.isEmpty())
            explanation += QStringLiteral(" (with %1)").arg(with);
        text += tagged(optionTag(option), explanation);
    }
    return text;
}

QString manualRest()
{
    QString text = QStringLiteral(".SH EXIT STATUS\n");
    for (const ExitCodeRow &row : exitCodeRows())
        text += tagged(QStringLiteral("\\fB%1\\fR").arg(row.code), QLatin1String(row.meaning));
    text += QStringLiteral(".SH ENVIRONMENT\n") +
            tagged(bold("NO_COLOR"), QStringLiteral("When set to any text, no bold header on a terminal.")) +
            QStringLiteral(".SH EXAMPLES\n.nf\n");
    for (const CommandRow &command : commandRows()) {
        for (const QString &example : wordsOf(command.examples, u'\n'))
            text += troff(QStringLiteral("%1 %2").arg(QLatin1String(programName), example)) + u'\n';
    }
    return text + QStringLiteral(".fi\n");
}

// What completes the value of an option, or an argument.
QString reply(Completion completion, const char *words)
{
    switch (completion) {
    case Completion::file:
        return QStringLiteral("mapfile -t COMPREPLY < <(compgen -f -- \"$current\")");
    case Completion::folder:
        return QStringLiteral("mapfile -t COMPREPLY < <(compgen -d -- \"$current\")");
    case Completion::words:
        return QStringLiteral("mapfile -t COMPREPLY < <(compgen -W '%1' -- \"$current\")").arg(QLatin1String(words));
    case Completion::none:
        break;
    }
    return QStringLiteral("COMPREPLY=()");
}

QString valueCases()
{
    QString text;
    for (const OptionRow &option : optionRows()) {
        if (option.value == nullptr)
            continue;
        const QString letter =
            option.letter == nullptr ? QString() : QStringLiteral("-%1 | ").arg(QLatin1String(option.letter));
        text += QStringLiteral("        %1--%2) %3; return ;;\n")
                    .arg(letter, QLatin1String(option.name), reply(option.completion, option.words));
    }
    return text;
}

QString optionsOf(const CommandRow &command)
{
    QStringList names;
    for (const OptionRow &option : optionRows()) {
        if (takesOption(command, option))
            names.append(QStringLiteral("--") + QLatin1String(option.name));
    }
    return names.join(u' ');
}

QString commandCases()
{
    QString text;
    for (const CommandRow &command : commandRows()) {
        const QString argument =
            command.arguments == nullptr ? QStringLiteral("COMPREPLY=()") : reply(command.completion, command.words);
        text += QStringLiteral("        %1) options='%2'; [[ $current == -* ]] || { %3; return; } ;;\n")
                    .arg(QLatin1String(command.name), optionsOf(command), argument);
    }
    return text;
}

} // namespace

QString manualPage()
{
    const QString name = QLatin1String(programName);
    return QStringLiteral(".\\\" SPDX-License-Identifier: Apache-2.0\n.\\\" Made by %1 --print-manual.\n"
                          ".TH %2 1\n.SH NAME\n%1 \\- tests audio devices\n"
                          ".SH SYNOPSIS\n.B %1\n.I COMMAND\n[\\fIOPTIONS\\fR]\n.br\n.B %1 \\-Maudio\n"
                          "[\\fIdiagnostic\\fR\"[\\fItests\\fR]\"] [\\fIdevice ids\\fR]\n")
               .arg(name, name.toUpper()) +
           manualCommands() + manualOptions() + manualRest();
}

QString bashCompletion()
{
    QStringList names;
    for (const CommandRow &command : commandRows())
        names.append(QLatin1String(command.name));
    return QStringLiteral("# SPDX-License-Identifier: Apache-2.0\n# Made by %1 --print-completion.\n"
                          "_%1() {\n"
                          "    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command='' word\n"
                          "    local options='-Maudio --help --version --gnu-exit --print-manual --print-completion'\n"
                          "    case $previous in\n%2    esac\n"
                          "    for word in \"${COMP_WORDS[@]:1:COMP_CWORD - 1}\"; do\n"
                          "        case $word in %3) command=$word; break ;; esac\n"
                          "    done\n"
                          "    case $command in\n%4"
                          "        *) [[ $current == -* ]] || options='%5' ;;\n"
                          "    esac\n"
                          "    mapfile -t COMPREPLY < <(compgen -W \"$options\" -- \"$current\")\n"
                          "}\n"
                          "complete -o filenames -F _%1 %1\n")
        .arg(QLatin1String(programName), valueCases(), names.join(QStringLiteral(" | ")), commandCases(), names.join(u' '));
}

} // namespace host
