// SPDX-License-Identifier: Apache-2.0
#include "host/operator/listener_line.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace host {

namespace {

using Kind = ListenerLine::Kind;

constexpr qint64 latestMs = qint64{1} << 53; // what a number of JSON holds exactly

Kind kindOf(const QString &event)
{
    if (event == QLatin1String("digit") || event == QLatin1String("sound"))
        return Kind::sound;
    if (event == QLatin1String("level"))
        return Kind::level;
    if (event == QLatin1String("ready"))
        return Kind::ready;
    return event == QLatin1String("lost") ? Kind::lost : Kind::unknown;
}

HeardEvent soundOf(const QJsonObject &object, const char *moment)
{
    HeardEvent event;
    event.startMs = object.value(QLatin1String(moment)).toInteger(-1);
    if (const int digit = object.value(QLatin1String("digit")).toInt(-1); digit >= 0 && digit <= 9)
        event.digit = digit;
    event.score = object.value(QLatin1String("score")).toDouble();
    event.margin = object.value(QLatin1String("margin")).toDouble();
    event.levelDbfs = object.value(QLatin1String("levelDbfs")).toDouble();
    event.isClipped = object.value(QLatin1String("clipped")).toBool();
    return event;
}

} // namespace

ListenerLine readListenerLine(const QByteArray &line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const Kind kind = kindOf(object.value(QLatin1String("event")).toString());
    ListenerLine read;
    read.kind = kind;
    if (kind == Kind::ready)
        read.sound.startMs = object.value(QLatin1String("steadyMs")).toInteger();
    if (kind != Kind::sound && kind != Kind::level)
        return read;
    read.sound = soundOf(object, kind == Kind::sound ? "startMs" : "atMs");
    // A missing level must not pass for 0 dBFS, the loudest there is.
    if (read.sound.startMs < 0 || read.sound.startMs > latestMs || !object.value(QLatin1String("levelDbfs")).isDouble())
        return {};
    read.frameCount = object.value(QLatin1String("frames")).toDouble();
    read.droppedFrameCount = object.value(QLatin1String("droppedFrames")).toDouble();
    return read;
}

} // namespace host
