// SPDX-License-Identifier: Apache-2.0
#include "host/operator/listener_line.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <initializer_list>

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
    if (event == QLatin1String("clip"))
        return Kind::clip;
    if (event == QLatin1String("meter"))
        return Kind::meter;
    if (event == QLatin1String("ready"))
        return Kind::ready;
    return event == QLatin1String("lost") ? Kind::lost : Kind::unknown;
}

double number(const QJsonObject &object, const char *key) { return object.value(QLatin1String(key)).toDouble(); }

std::optional<double> optionalNumber(const QJsonObject &object, const char *key)
{
    const QJsonValue value = object.value(QLatin1String(key));
    return value.isDouble() ? std::optional(value.toDouble()) : std::nullopt;
}

QList<double> numbers(const QJsonObject &object, const char *key)
{
    QList<double> list;
    const QJsonArray values = object.value(QLatin1String(key)).toArray();
    for (const QJsonValue value : values)
        list.append(value.toDouble());
    return list;
}

std::shared_ptr<const DigitMeasurement> measurementOf(const QJsonValue &value)
{
    const QJsonObject object = value.toObject();
    if (object.isEmpty())
        return nullptr;
    return std::make_shared<const DigitMeasurement>(
        DigitMeasurement{optionalNumber(object, "snrDb"), optionalNumber(object, "residualDbfs"),
                         optionalNumber(object, "clockErrorPpm"), number(object, "peakDbfs"), numbers(object, "channelDbfs"),
                         object.value(QLatin1String("clippedFrameCount")).toInteger(), numbers(object, "lowest"),
                         numbers(object, "highest"), numbers(object, "bandLevelsDbfs")});
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
    event.measured = measurementOf(object.value(QLatin1String("measured")));
    return event;
}

// A missing level must not pass for 0 dBFS, the loudest there is.
bool hasNumbers(const QJsonObject &object, const char *moment, std::initializer_list<const char *> levels)
{
    const qint64 atMs = object.value(QLatin1String(moment)).toInteger(-1);
    return atMs >= 0 && atMs <= latestMs && std::all_of(levels.begin(), levels.end(), [&](const char *key) {
               return object.value(QLatin1String(key)).isDouble();
           });
}

HeardPlace placeOf(const QJsonObject &object)
{
    HeardPlace place;
    place.startMs = object.value(QLatin1String("startMs")).toInteger();
    place.score = number(object, "score");
    place.isFound = object.value(QLatin1String("found")).toBool();
    place.levelDbfs = number(object, "levelDbfs");
    place.isClipped = object.value(QLatin1String("clipped")).toBool();
    return place;
}

MeteredMoment momentOf(const QJsonObject &object)
{
    MeteredMoment moment;
    moment.endMs = object.value(QLatin1String("atMs")).toInteger();
    moment.peakDbfs = number(object, "peakDbfs");
    moment.rmsDbfs = number(object, "rmsDbfs");
    const QJsonArray channels = object.value(QLatin1String("channelDbfs")).toArray();
    moment.leftDbfs = channels.at(0).toDouble();
    moment.rightDbfs = channels.at(1).toDouble();
    moment.differenceDbfs = number(object, "differenceDbfs");
    const QJsonArray wave = object.value(QLatin1String("wave")).toArray();
    for (const QJsonValue &sample : wave)
        moment.wave.append(sample.toDouble());
    return moment;
}

ListenerLine readPlaceOrMoment(Kind kind, const QJsonObject &object)
{
    ListenerLine read;
    if (kind == Kind::clip && hasNumbers(object, "startMs", {"levelDbfs", "score"})) {
        read.kind = kind;
        read.place = placeOf(object);
    } else if (kind == Kind::meter && hasNumbers(object, "atMs", {"peakDbfs", "rmsDbfs"})) {
        read.kind = kind;
        read.moment = momentOf(object);
    }
    return read;
}

} // namespace

ListenerLine readListenerLine(const QByteArray &line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const Kind kind = kindOf(object.value(QLatin1String("event")).toString());
    ListenerLine read;
    read.kind = kind;
    if (kind == Kind::ready) {
        read.sound.startMs = object.value(QLatin1String("steadyMs")).toInteger();
        read.sourceChannelCount = object.value(QLatin1String("sourceChannels")).toInt();
    }
    if (kind == Kind::clip || kind == Kind::meter)
        return readPlaceOrMoment(kind, object);
    if (kind != Kind::sound && kind != Kind::level)
        return read;
    const char *moment = kind == Kind::sound ? "startMs" : "atMs";
    if (!hasNumbers(object, moment, {"levelDbfs"}))
        return {};
    read.sound = soundOf(object, moment);
    read.frameCount = object.value(QLatin1String("frames")).toDouble();
    read.droppedFrameCount = object.value(QLatin1String("droppedFrames")).toDouble();
    return read;
}

} // namespace host
