// SPDX-License-Identifier: Apache-2.0
#include "host/operator/listener_link.h"

#include "host/operator/child_end.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

namespace host {

namespace {

// The sound library waits 30 s for a server that does not answer.
constexpr int startLimitMs = 35'000;
constexpr int pollMs = 100;

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
    endByClosedInput(process_);
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
        take(readListenerLine(process_.readLine()));
}

void ListenerLink::take(const ListenerLine &line)
{
    switch (line.kind) {
    case ListenerLine::Kind::sound:
        log_.addSound(line.sound);
        break;
    case ListenerLine::Kind::level:
        log_.addLevel(line.sound.startMs, line.sound.levelDbfs);
        log_.addArrival(line.sound.startMs, line.frameCount, line.droppedFrameCount);
        break;
    case ListenerLine::Kind::ready:
        log_.addArrival(line.sound.startMs, 0, 0);
        sourceChannelCount_ = line.sourceChannelCount;
        isReady_ = true;
        break;
    case ListenerLine::Kind::lost:
        isLost_ = true;
        break;
    case ListenerLine::Kind::clip:
        log_.addPlace(line.place);
        break;
    case ListenerLine::Kind::meter:
        takeMoment(line.moment);
        break;
    case ListenerLine::Kind::unknown:
        break;
    }
}

void ListenerLink::takeMoment(const MeteredMoment &moment)
{
    log_.addMoment(moment);
    emit metered(moment);
}

} // namespace host
