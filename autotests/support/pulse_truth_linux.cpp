// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/pulse_truth_linux.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <csignal>

namespace pulse_truth {

namespace {

constexpr int toolLimitMilliseconds = 10000;

Device deviceOf(const QJsonObject &entry)
{
    Device device;
    device.muted = entry[QLatin1String("mute")].toBool();
    // The channels are listed by name in the object and in their order in the map.
    const QJsonObject volume = entry[QLatin1String("volume")].toObject();
    for (const QString &channel : entry[QLatin1String("channel_map")].toString().split(QLatin1Char(',')))
        device.volumes.push_back(static_cast<unsigned>(volume[channel].toObject()[QLatin1String("value")].toInt(-1)));
    return device;
}

void addDevices(Devices &devices, const QString &kind)
{
    const QString text = run({QStringLiteral("-f"), QStringLiteral("json"), QStringLiteral("list"), kind});
    for (const QJsonValue entry : QJsonDocument::fromJson(text.toUtf8()).array())
        devices[entry.toObject()[QLatin1String("name")].toString().toStdString()] = deviceOf(entry.toObject());
}

pid_t serverProcess()
{
    QFile file(qEnvironmentVariable("VIRTUAL_SOUND_CARD_DIR") + QStringLiteral("/pid"));
    const bool isOpen = file.open(QIODevice::ReadOnly);
    const pid_t process = isOpen ? file.readAll().trimmed().toInt() : 0;
    if (process <= 1) // signals to these numbers reach more than one process
        qFatal("the virtual sound card's server is unknown");
    return process;
}

bool doesAnswer()
{
    QProcess tool;
    tool.start(QStringLiteral("pactl"), {QStringLiteral("info")});
    return tool.waitForFinished(toolLimitMilliseconds) && tool.exitStatus() == QProcess::NormalExit && tool.exitCode() == 0;
}

} // namespace

QString run(const QStringList &arguments)
{
    QProcess tool;
    tool.start(QStringLiteral("pactl"), arguments);
    const bool isDone = tool.waitForFinished(toolLimitMilliseconds) && tool.exitCode() == 0;
    if (!isDone)
        QTest::qFail(qPrintable(arguments.join(QLatin1Char(' ')) + QString::fromUtf8(tool.readAllStandardError())), __FILE__,
                     __LINE__);
    return QString::fromUtf8(tool.readAllStandardOutput());
}

Devices devices()
{
    Devices devices;
    addDevices(devices, QStringLiteral("sinks"));
    addDevices(devices, QStringLiteral("sources"));
    return devices;
}

void set(const QString &kind, const QString &name, const std::vector<unsigned> &volumes, bool muted)
{
    QStringList arguments{QStringLiteral("set-%1-volume").arg(kind), name};
    for (const unsigned volume : volumes)
        arguments << QString::number(volume);
    run(arguments);
    run({QStringLiteral("set-%1-mute").arg(kind), name, muted ? QStringLiteral("1") : QStringLiteral("0")});
}

void addSink(const QString &name, int channelCount)
{
    run({QStringLiteral("load-module"), QStringLiteral("module-null-sink"), QStringLiteral("sink_name=") + name,
         QStringLiteral("channels=%1").arg(channelCount)});
}

void addSource(const QString &name)
{
    run({QStringLiteral("load-module"), QStringLiteral("module-null-source"), QStringLiteral("source_name=") + name});
}

void remove(const QString &name)
{
    const QString list = run({QStringLiteral("list"), QStringLiteral("short"), QStringLiteral("modules")});
    for (const QString &line : list.split(QLatin1Char('\n'))) {
        const QStringList columns = line.split(QLatin1Char('\t'));
        if (columns.size() > 2 &&
            columns[2]
                .split(QLatin1Char(' '))
                .contains(columns[1] == QLatin1String("module-null-sink") ? QStringLiteral("sink_name=") + name
                                                                          : QStringLiteral("source_name=") + name))
            run({QStringLiteral("unload-module"), columns[0]});
    }
}

// The short lists only: the words of the long ones are translated.
QString numberOf(const QString &sinkName)
{
    const QString list = run({QStringLiteral("list"), QStringLiteral("short"), QStringLiteral("sinks")});
    for (const QString &line : list.split(u'\n')) {
        if (line.section(u'\t', 1, 1) == sinkName)
            return line.section(u'\t', 0, 0);
    }
    return {};
}

bool isPlayedOn(const QString &sinkName)
{
    const QString number = numberOf(sinkName);
    const QString list = run({QStringLiteral("list"), QStringLiteral("short"), QStringLiteral("sink-inputs")});
    const QStringList streams = list.split(u'\n', Qt::SkipEmptyParts);
    return std::ranges::any_of(streams, [&](const QString &stream) { return stream.section(u'\t', 1, 1) == number; });
}

FrozenServer::FrozenServer() { kill(serverProcess(), SIGSTOP); }

// Whoever asked in vain still stands in the queue of the server's socket, and a full queue refuses the next one at once.
FrozenServer::~FrozenServer()
{
    kill(serverProcess(), SIGCONT);
    const QDeadlineTimer deadline(toolLimitMilliseconds);
    while (!doesAnswer() && !deadline.hasExpired())
        QThread::msleep(20);
}

} // namespace pulse_truth
