// SPDX-License-Identifier: Apache-2.0
#include "host/core/language_setting.h"
#include "host/gui/options.h"

#include <array>

namespace host {

namespace {

struct HostExitCode {
    int code;
    const char *meaning;
};

constexpr std::array<HostExitCode, 8> exitCodes{{
    {0, "passed"},
    {1, "failed"},
    {2, "wrong usage"},
    {3, "cannot be performed"},
    {4, "not completed, as when the display is lost"},
    {6, "no module or an invalid call"},
    {130, "interrupted by Ctrl-C"},
    {143, "asked to end"},
}};

constexpr const char *purpose = "Lists the machine's output devices and runs the tests of the audio module on them.";

constexpr const char *notes =
    "--unattended needs --test, --device and --listen; --report, --screenshots and --mistype go with it.\n"
    "With --test m a sentence is spoken through --speak-through while --microphone records; the playback of the\n"
    "recording is judged by what --listen hears of it.\n"
    "While a test runs, Ctrl+Shift+S stops it in whichever window; with --developer, Ctrl+Shift+F1 to F10\n"
    "simulate the events 0 to 9.\n";

// A hyphen of an option must stay one that can be copied.
QString troff(QString text) { return text.replace(u'\\', QStringLiteral("\\e")).replace(u'-', QStringLiteral("\\-")); }

QString optionTag(const OptionOfHost &option)
{
    const QString name = QStringLiteral("\\fB\\-\\-%1\\fR").arg(troff(QLatin1String(option.name)));
    return option.value == nullptr ? name : name + QStringLiteral(" \\fI%1\\fR").arg(troff(QLatin1String(option.value)));
}

QString reply(const QString &value)
{
    QString kind;
    if (value == QLatin1String("FILE"))
        kind = QStringLiteral("-f");
    else if (value == QLatin1String("DIR"))
        kind = QStringLiteral("-d");
    else if (value == QLatin1String("CODE"))
        kind = QStringLiteral("-W '%1'").arg(LanguageSetting::codes().join(u' '));
    else if (value.contains(u'|'))
        kind = QStringLiteral("-W '%1'").arg(QString(value).replace(u'|', u' '));
    else
        return QStringLiteral("COMPREPLY=()");
    return QStringLiteral("mapfile -t COMPREPLY < <(compgen %1 -- \"$current\")").arg(kind);
}

} // namespace

QString optionsHelp()
{
    QString text = QStringLiteral("Usage: TamrexDiagnostics [OPTIONS]\n%1\n\n").arg(QLatin1String(purpose));
    constexpr int column = 26;
    for (const OptionOfHost &option : optionsOfHost()) {
        QString name = QStringLiteral("  --") + QLatin1String(option.name);
        if (option.value != nullptr)
            name += u' ' + QLatin1String(option.value);
        text += name.leftJustified(column) + QLatin1String(option.explanation) + u'\n';
    }
    text += u'\n' + QLatin1String(notes) + QStringLiteral("\nExit codes:\n");
    for (const HostExitCode &row : exitCodes)
        text += QStringLiteral("  %1  %2\n").arg(row.code, 3).arg(QLatin1String(row.meaning));
    return text;
}

QString manualOfHost()
{
    QString text = QStringLiteral(".\\\" SPDX-License-Identifier: Apache-2.0\n"
                                  ".\\\" Made by TamrexDiagnostics --print-manual.\n"
                                  ".TH TAMREXDIAGNOSTICS 1\n"
                                  ".SH NAME\nTamrexDiagnostics \\- tests loudspeakers and microphones with spoken digits\n"
                                  ".SH SYNOPSIS\n.B TamrexDiagnostics\n[\\fIOPTIONS\\fR]\n"
                                  ".SH DESCRIPTION\n%1\nVolumes are raised for a test and come back afterwards.\n.PP\n%2"
                                  ".SH OPTIONS\n")
                       .arg(troff(QLatin1String(purpose)), troff(QLatin1String(notes)));
    for (const OptionOfHost &option : optionsOfHost())
        text += QStringLiteral(".TP\n%1\n%2\n").arg(optionTag(option), troff(QLatin1String(option.explanation)));
    text += QStringLiteral(".SH EXIT STATUS\n");
    for (const HostExitCode &row : exitCodes)
        text += QStringLiteral(".TP\n\\fB%1\\fR\n%2\n").arg(row.code).arg(troff(QLatin1String(row.meaning)));
    return text + QStringLiteral(".SH FILES\n.TP\n\\fI~/.local/share/Tamrex/TamrexDiagnostics/config.ini\\fR\nthe language\n"
                                 ".SH SEE ALSO\n\\fBTamrexDiagnosticsCLI\\fR(1)\n");
}

QString completionOfHost()
{
    QString cases;
    QStringList names;
    for (const OptionOfHost &option : optionsOfHost()) {
        names.append(QStringLiteral("--") + QLatin1String(option.name));
        if (option.value != nullptr)
            cases += QStringLiteral("        --%1) %2; return ;;\n")
                         .arg(QLatin1String(option.name), reply(QLatin1String(option.value)));
    }
    return QStringLiteral("# SPDX-License-Identifier: Apache-2.0\n# Made by TamrexDiagnostics --print-completion.\n"
                          "_TamrexDiagnostics() {\n"
                          "    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}\n"
                          "    case $previous in\n%1    esac\n"
                          "    mapfile -t COMPREPLY < <(compgen -W '%2' -- \"$current\")\n"
                          "}\n"
                          "complete -o filenames -F _TamrexDiagnostics TamrexDiagnostics\n")
        .arg(cases, names.join(u' '));
}

} // namespace host
