// SPDX-License-Identifier: Apache-2.0
#include "host/operator/listener_link.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QJsonArray>
#include <QJsonDocument>

namespace host {

namespace {

// The sound library waits 30 s for a server that does not answer.
constexpr int startLimitMs = 35'000;
constexpr int endLimitMs = 3'000;
constexpr int pollMs = 100;

double number(const QJsonObject &object, const char *key) { return object.value(QLatin1String(key)).toDouble(); }

HeardEvent soundOf(const QJsonObject &object)
{
    HeardEvent event;
    event.startMs = static_cast<qint64>(number(object, "startMs"));
    if (const int digit = object.value(QLatin1String("digit")).toInt(-1); digit >= 0 && digit <= 9)
        event.digit = digit;
    event.score = number(object, "score");
    event.margin = number(object, "margin");
    event.levelDbfs = number(object, "levelDbfs");
    event.isClipped = object.value(QLatin1String("clipped")).toBool();
    return event;
}

HeardPlace placeOf(const QJsonObject &object)
{
    HeardPlace place;
    place.startMs = static_cast<qint64>(number(object, "startMs"));
    place.score = number(object, "score");
    place.isFound = object.value(QLatin1String("found")).toBool();
    place.levelDbfs = number(object, "levelDbfs");
    place.isClipped = object.value(QLatin1String("clipped")).toBool();
    return place;
}

MeteredMoment momentOf(const QJsonObject &object)
{
    MeteredMoment moment;
    moment.endMs = static_cast<qint64>(number(object, "atMs"));
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

} // namespace

ListenerLink::ListenerLink(QObject *parent) : QObject(parent)
{
    connect(&process_, &QProcess::readyReadStandardOutput, this, &ListenerLink::readLines);
    connect(&process_, &QProcess::finished, this, &ListenerLink::noteEnd);
    connect(&process_, &QProcess::errorOccurred, this, &ListenerLink::noteEnd);
}

ListenerLink::~ListenerLink()
{
    process_.disconnect(this);
    if (process_.state() == QProcess::NotRunning)
        return;
    process_.closeWriteChannel();
    if (!process_.waitForFinished(endLimitMs)) {
        process_.kill();
        process_.waitForFinished(endLimitMs);
    }
}

void ListenerLink::launch(const QStringList &arguments)
{
    isLost_ = false;
    process_.start(QCoreApplication::applicationDirPath() + QStringLiteral("/audio_listener"), arguments);
}

bool ListenerLink::start(const QStringList &arguments)
{
    launch(arguments);
    const QDeadlineTimer limit(startLimitMs);
    while (!isReady_ && !isLost_ && !limit.hasExpired())
        process_.waitForReadyRead(pollMs);
    if (isReady_ && !isLost_)
        return true;
    isLost_ = true;
    noteError();
    return false;
}

void ListenerLink::noteError()
{
    if (errorText_.isEmpty())
        errorText_ = QString::fromUtf8(process_.readAllStandardError()).trimmed();
    if (errorText_.isEmpty())
        errorText_ = QStringLiteral("audio_listener ended: %1").arg(process_.errorString());
}

void ListenerLink::noteEnd()
{
    if (process_.state() != QProcess::NotRunning)
        return;
    readLines();
    isLost_ = true;
    noteError();
    emit lost();
}

void ListenerLink::readLines()
{
    while (process_.canReadLine())
        take(QJsonDocument::fromJson(process_.readLine()).object());
}

void ListenerLink::take(const QJsonObject &object)
{
    const QString event = object.value(QLatin1String("event")).toString();
    if (event == QLatin1String("digit") || event == QLatin1String("sound"))
        log_.addSound(soundOf(object));
    else if (event == QLatin1String("level"))
        log_.addLevel(static_cast<qint64>(number(object, "atMs")), number(object, "levelDbfs"));
    else if (event == QLatin1String("ready"))
        isReady_ = true;
    else if (event == QLatin1String("lost"))
        isLost_ = true;
    else if (event == QLatin1String("clip"))
        log_.addPlace(placeOf(object));
    else if (event == QLatin1String("meter"))
        takeMoment(momentOf(object));
}

void ListenerLink::takeMoment(const MeteredMoment &moment)
{
    log_.addMoment(moment);
    emit metered(moment);
}

} // namespace host
