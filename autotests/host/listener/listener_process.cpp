// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/listener/listener_process.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QJsonDocument>

#include <algorithm>

namespace {

constexpr int limitMilliseconds = 30'000;

} // namespace

ListenerProcess::ListenerProcess(const QStringList &arguments)
{
    process_.start(QCoreApplication::applicationDirPath() + QStringLiteral("/../../../bundle/audio_listener"), arguments);
    process_.waitForStarted(limitMilliseconds);
}

ListenerProcess::~ListenerProcess()
{
    process_.kill();
    process_.waitForFinished(limitMilliseconds);
}

void ListenerProcess::readLines()
{
    while (process_.canReadLine())
        events_.append(QJsonDocument::fromJson(process_.readLine()).object());
}

QJsonObject ListenerProcess::waitFor(const QString &event) { return waitForOneOf({event}); }

QJsonObject ListenerProcess::waitForOneOf(const QStringList &events)
{
    const QDeadlineTimer limit(limitMilliseconds);
    while (!limit.hasExpired()) {
        readLines();
        while (used_ < events_.size()) {
            const QJsonObject &next = events_.at(used_++);
            if (events.contains(next.value(QLatin1String("event")).toString()))
                return next;
        }
        if (process_.state() == QProcess::NotRunning)
            return {};
        process_.waitForReadyRead(100);
    }
    return {};
}

int ListenerProcess::countOf(const QString &event) const
{
    return static_cast<int>(std::count_if(events_.begin(), events_.end(), [&event](const QJsonObject &object) {
        return object.value(QLatin1String("event")).toString() == event;
    }));
}

bool ListenerProcess::waitForEnd()
{
    const bool hasEnded = process_.state() == QProcess::NotRunning || process_.waitForFinished(limitMilliseconds);
    readLines();
    return hasEnded && process_.exitStatus() == QProcess::NormalExit;
}

QStringList listeningArguments(const QString &source, const QString &language)
{
    return {QStringLiteral("--source"),   source,  QStringLiteral("--clips"), QStringLiteral(AUDIO_CLIPS_DIR),
            QStringLiteral("--language"), language};
}
