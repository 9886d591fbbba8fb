// SPDX-License-Identifier: Apache-2.0
#include "host/listener/listener_options.h"

#include <QCommandLineOption>
#include <QCommandLineParser>

namespace host {

namespace {

const QString help = QStringLiteral("help");
const QString list = QStringLiteral("list");
const QString source = QStringLiteral("source");
const QString clips = QStringLiteral("clips");
const QString language = QStringLiteral("language");
const QString find = QStringLiteral("find");
const QString meter = QStringLiteral("meter");
const QString record = QStringLiteral("record");

void addOptions(QCommandLineParser &parser)
{
    parser.addOption(QCommandLineOption(QStringList{QStringLiteral("h"), help}));
    for (const QString &name : {list, meter})
        parser.addOption(QCommandLineOption(name));
    for (const QString &name : {source, clips, language, find, record})
        parser.addOption(QCommandLineOption(name, {}, QStringLiteral("VALUE")));
}

// Digits, a clip, or the level alone.
QStringList neededBy(const QCommandLineParser &parser)
{
    if (parser.isSet(find))
        return {source, find};
    const bool isLevelAlone = parser.isSet(meter) && !parser.isSet(clips) && !parser.isSet(language);
    return isLevelAlone ? QStringList{source} : QStringList{source, clips, language};
}

std::variant<ListenerOptions, ListenerUsageError> readListening(const QCommandLineParser &parser)
{
    for (const QString &name : neededBy(parser)) {
        if (parser.value(name).isEmpty())
            return ListenerUsageError{QStringLiteral("'--%1' is missing (try --help)").arg(name)};
    }
    for (const QString &name : {clips, language}) {
        if (parser.isSet(find) && parser.isSet(name))
            return ListenerUsageError{QStringLiteral("'--%1' and '--find' exclude each other (try --help)").arg(name)};
    }
    return ListenerOptions{ListenerTask::listen, parser.value(source), parser.value(clips), parser.value(language),
                           parser.value(find),   parser.isSet(meter),  parser.value(record)};
}

} // namespace

std::variant<ListenerOptions, ListenerUsageError> parseListenerOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(arguments))
        return ListenerUsageError{QStringLiteral("%1 (try --help)").arg(parser.errorText())};
    if (!parser.positionalArguments().isEmpty())
        return ListenerUsageError{QStringLiteral("unexpected '%1' (try --help)").arg(parser.positionalArguments().first())};
    if (parser.isSet(help))
        return ListenerOptions{};
    if (parser.isSet(list))
        return ListenerOptions{ListenerTask::list, {}, {}, {}, {}, false, {}};
    return readListening(parser);
}

QString listenerHelp()
{
    return QStringLiteral(R"(Usage: audio_listener --list
       audio_listener --source NAME --clips DIR --language CODE [--meter]
       audio_listener --source NAME --find FILE [--meter]
       audio_listener --source NAME --meter

Listens to a capture source and tells which spoken digits it hears, or where it hears a given clip, one JSON object a line.

  --list           names the capture sources, also those that hear what a device plays
  --source NAME    listen to this one: its exact name, or "loopback:" and the name of an output
  --clips DIR      folder with one folder of ten clips a language
  --language CODE  language of the digits, such as en_US
  --find FILE      look for this clip of up to 5 s (16-bit WAVE) instead of digits
  --meter          tell peak, level and waveform of every tenth of a second
  --record FILE    keep what is heard in a WAVE file, from "ready" on; without it no sound is kept
  --help           this text

Events: "ready", "digit", "sound" (no known digit), "clip" (the place most like the clip, every 500 ms of sound), "meter",
"level" (the loudest 50 ms of the last second), "lost".
Moments ("startMs", "atMs") are milliseconds of the machine's steady clock; "ready" relates it to the calendar.
Ends at the end of its standard input, or when asked to by a signal.

Exit codes: 0 it was told to end, 2 wrong usage or unreadable clips, 3 no such source, 4 the source was lost.
)");
}

} // namespace host
