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
    return std::make_shared<const DigitMeasurement>(DigitMeasurement{
        optionalNumber(object, "snrDb"), optionalNumber(object, "residualDbfs"), optionalNumber(object, "clockErrorPpm"),
        number(object, "peakDbfs"), object.value(QLatin1String("clippedFrameCount")).toInteger(), numbers(object, "lowest"),
        numbers(object, "highest"), numbers(object, "bandLevelsDbfs")});
}

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
    event.measured = measurementOf(object.value(QLatin1String("measured")));
    return event;
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

bool ListenerLink::start(const QStringList &arguments)
{
    isLost_ = false;
    process_.start(QCoreApplication::applicationDirPath() + QStringLiteral("/audio_listener"), arguments);
    const QDeadlineTimer limit(startLimitMs);
    while (!isReady_ && !isLost_ && !limit.hasExpired())
        process_.waitForReadyRead(pollMs);
    if (isReady_ && !isLost_)
        return true;
    isLost_ = true;
    errorText_ = QString::fromUtf8(process_.readAllStandardError()).trimmed();
    if (errorText_.isEmpty())
        errorText_ = QStringLiteral("audio_listener did not start: %1").arg(process_.errorString());
    return false;
}

void ListenerLink::noteEnd()
{
    if (process_.state() != QProcess::NotRunning)
        return;
    readLines();
    isLost_ = true;
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
}

} // namespace host
