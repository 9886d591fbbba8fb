// SPDX-License-Identifier: Apache-2.0
#include "host/gui/options.h"

#include "host/core/capture_source.h"
#include "host/core/language_setting.h"
#include "host/reports/report_formats.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

#include <array>

namespace host {

namespace {

constexpr std::array<OptionOfHost, 23> knownOptions{{
    {"unattended", nullptr, "run one test without a person and exit with its code", false},
    {"test", "p|m", "p: audio playback test, m: microphone interactive test", true},
    {"device", "NAME", "the device to test: its name, or its position in the list", true},
    {"listen", "SOURCE", "what hears the device: an input, or loopback:DEVICE; test m shows its level", false},
    {"microphone", "NAME", "the microphone that test m chooses (the first one)", true},
    {"speak-through", "OUTPUT", "the output that the microphone hears (the tested device)", true},
    {"report", "FILE", "write the report of the run there: .json, .xml, .html or .txt; may be repeated", true},
    {"verdict-file", "FILE", "write the exit code there last: where it is missing, the run has not come to one", true},
    {"keep-audio", "FILE", "keep all that is heard, voices too, in FILE (.wav); without it no sound is kept", true},
    {"channel-check", nullptr, "check left and right before the run, at the present volume; no part of the verdict", true},
    {"screenshots", "DIR", "photograph the windows into that folder", true},
    {"mistype", "N", "for proofs: get N sequences wrong", true},
    {"language", "CODE", "language, such as de_DE; kept for later starts", false},
    {"config", "DIR", "take the language from the config.ini of that folder, which stays unchanged", false},
    {"developer", nullptr, "add a menu that simulates events of the machine", false},
    {"simulate-event", "BIT@MS", "raise that event that long after the start of a run; may be repeated", false},
    {"stop-after", "MS", "stop each run that long after its start", false},
    {"verbose", nullptr, "also show the debug lines of the module", false},
    {"self-check", nullptr, "print as JSON what the windows of this installation lack, and exit", false},
    {"print-manual", nullptr, "print the manual page (troff) and exit", false},
    {"print-completion", nullptr, "print the completion for bash and exit", false},
    {"help", nullptr, "print this and exit", false},
    {"version", nullptr, "print the version and exit", false},
}};

OptionsError error(const QString &reason) { return {reason + QStringLiteral(" (try --help)")}; }

void addOptions(QCommandLineParser &parser)
{
    for (const OptionOfHost &option : knownOptions) {
        QStringList names{QLatin1String(option.name)};
        if (names.first() == QLatin1String("help"))
            names.prepend(QStringLiteral("h"));
        parser.addOption(QCommandLineOption(names, QString(), QLatin1String(option.value)));
    }
}

OptionsError parserError(const QCommandLineParser &parser)
{
    const QStringList unknown = parser.unknownOptionNames();
    if (!unknown.isEmpty())
        return error(QStringLiteral("unknown option '%1'").arg(unknown.first()));
    QString reason = parser.errorText();
    if (reason.endsWith(u'.'))
        reason.chop(1);
    return error(reason.left(1).toLower() + reason.mid(1));
}

// Digits only: QString::toInt would also take signs and blanks.
std::optional<int> number(const QString &text)
{
    for (const QChar digit : text) {
        if (digit < u'0' || digit > u'9')
            return std::nullopt;
    }
    bool isNumber = false;
    const int value = text.toInt(&isNumber);
    return isNumber ? std::optional<int>(value) : std::nullopt;
}

QString absolute(const QString &path) { return path.isEmpty() ? path : QFileInfo(path).absoluteFilePath(); }

std::optional<OptionsError> readSchedule(const QCommandLineParser &parser, RunSchedule &schedule)
{
    constexpr int bitCount = 32;
    const QStringList events = parser.values(QStringLiteral("simulate-event"));
    for (const QString &event : events) {
        const QStringList parts = event.split(u'@');
        const auto bit = number(parts.first());
        const auto moment = number(parts.value(1));
        if (parts.size() != 2 || !bit || !moment || *bit >= bitCount)
            return error(QStringLiteral("'%1' is no event: --simulate-event takes BIT@MS with a bit from 0 to 31").arg(event));
        schedule.events.append({*bit, std::chrono::milliseconds(*moment)});
    }
    if (!parser.isSet(QStringLiteral("stop-after")))
        return std::nullopt;
    const auto moment = number(parser.value(QStringLiteral("stop-after")));
    if (!moment)
        return error(
            QStringLiteral("--stop-after takes milliseconds, not '%1'").arg(parser.value(QStringLiteral("stop-after"))));
    schedule.stopAfter = std::chrono::milliseconds(*moment);
    return std::nullopt;
}

std::optional<OptionsError> checkUnattended(const QCommandLineParser &parser, const Options &options)
{
    for (const OptionOfHost &option : knownOptions) {
        if (option.isUnattendedOnly && !options.isUnattended && parser.isSet(QLatin1String(option.name)))
            return error(QStringLiteral("'--%1' goes with '--unattended' only").arg(QLatin1String(option.name)));
    }
    if (!options.isUnattended)
        return std::nullopt;
    if (options.test != QLatin1String("p") && options.test != QLatin1String("m"))
        return error(options.test.isEmpty() ? QStringLiteral("--unattended needs '--test p' or '--test m'")
                                            : QStringLiteral("unknown test '%1' (known: p, m)").arg(options.test));
    if (options.device.isEmpty())
        return error(QStringLiteral("--unattended needs '--device NAME'"));
    if (options.source.isEmpty())
        return error(QStringLiteral("--unattended needs '--listen SOURCE'"));
    for (const QString &file : options.reportFiles) {
        if (!reportFormatOf(file))
            return error(QStringLiteral("the report '%1' cannot be written: %2").arg(file, reportSuffixes()));
    }
    if (!options.keptAudio.isEmpty() && !options.keptAudio.endsWith(QStringLiteral(".wav"), Qt::CaseInsensitive))
        return error(QStringLiteral("the sound '%1' cannot be kept: its name must end in .wav").arg(options.keptAudio));
    for (const char *name : {"microphone", "speak-through"}) {
        if (options.test != QLatin1String("m") && parser.isSet(QLatin1String(name)))
            return error(QStringLiteral("'--%1' goes with '--test m' only").arg(QLatin1String(name)));
    }
    return std::nullopt;
}

std::optional<OptionsError> checkLanguage(const QCommandLineParser &parser, const Options &options)
{
    const bool isConfigSet = parser.isSet(QStringLiteral("config"));
    const bool isLanguageSet = parser.isSet(QStringLiteral("language"));
    if (isConfigSet && isLanguageSet)
        return error(QStringLiteral("'--language' and '--config' exclude each other"));
    if (isConfigSet && !QFileInfo(options.configFolder).isDir())
        return error(QStringLiteral("'%1' is no folder (--config)").arg(parser.value(QStringLiteral("config"))));
    if (isConfigSet && !QFileInfo(QDir(options.configFolder).filePath(QStringLiteral("config.ini"))).isFile())
        return error(QStringLiteral("there is no config.ini in '%1' (--config)").arg(parser.value(QStringLiteral("config"))));
    const QStringList codes = LanguageSetting::codes();
    if (isLanguageSet && !codes.contains(options.language))
        return error(
            QStringLiteral("unknown language '%1' (known: %2)").arg(options.language, codes.join(QStringLiteral(", "))));
    return std::nullopt;
}

Options readValues(const QCommandLineParser &parser)
{
    Options options;
    options.isHelp = parser.isSet(QStringLiteral("help"));
    options.isSelfCheck = parser.isSet(QStringLiteral("self-check"));
    options.isVersion = parser.isSet(QStringLiteral("version"));
    options.isManual = parser.isSet(QStringLiteral("print-manual"));
    options.isCompletion = parser.isSet(QStringLiteral("print-completion"));
    options.isVerbose = parser.isSet(QStringLiteral("verbose"));
    options.isUnattended = parser.isSet(QStringLiteral("unattended"));
    options.isDeveloper = parser.isSet(QStringLiteral("developer"));
    options.test = parser.value(QStringLiteral("test"));
    options.device = parser.value(QStringLiteral("device"));
    options.source = systemSource(parser.value(QStringLiteral("listen")));
    options.microphone = parser.value(QStringLiteral("microphone"));
    options.speakThrough = parser.value(QStringLiteral("speak-through"));
    options.language = parser.value(QStringLiteral("language"));
    const QStringList reports = parser.values(QStringLiteral("report"));
    for (const QString &file : reports)
        options.reportFiles.append(absolute(file));
    options.verdictFile = absolute(parser.value(QStringLiteral("verdict-file")));
    options.keptAudio = absolute(parser.value(QStringLiteral("keep-audio")));
    options.isChannelCheck = parser.isSet(QStringLiteral("channel-check"));
    options.screenshotsFolder = absolute(parser.value(QStringLiteral("screenshots")));
    options.configFolder = absolute(parser.value(QStringLiteral("config")));
    return options;
}

} // namespace

std::span<const OptionOfHost> optionsOfHost() { return knownOptions; }

std::variant<Options, OptionsError> readOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(arguments))
        return parserError(parser);
    Options options = readValues(parser);
    if (options.isHelp)
        return options;
    if (const auto wrong = checkLanguage(parser, options))
        return *wrong;
    if (options.isVersion)
        return options;
    if (!parser.positionalArguments().isEmpty())
        return error(QStringLiteral("unexpected argument '%1'").arg(parser.positionalArguments().first()));
    const QString mistype = parser.value(QStringLiteral("mistype"));
    const auto mistyped = mistype.isNull() ? std::optional<int>(0) : number(mistype);
    if (!mistyped)
        return error(QStringLiteral("--mistype takes a number of sequences, not '%1'").arg(mistype));
    options.mistypedSequences = *mistyped;
    for (const auto &wrong : {checkUnattended(parser, options), readSchedule(parser, options.schedule)}) {
        if (wrong)
            return *wrong;
    }
    return options;
}

} // namespace host
