// SPDX-License-Identifier: Apache-2.0
#include "host/operator/speaker_link.h"

#include "host/operator/child_end.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

namespace host {

SpeakerLink::SpeakerLink(const QString &device, const QString &clip, const QString &channel, QObject *parent) : QObject(parent)
{
    connect(&process_, &QProcess::readyReadStandardOutput, this, &SpeakerLink::readLines);
    connect(&process_, &QProcess::finished, this, &SpeakerLink::noteEnd);
    connect(&process_, &QProcess::errorOccurred, this, &SpeakerLink::noteEnd);
    QStringList arguments{QStringLiteral("--device"), device, QStringLiteral("--play"), clip};
    if (!channel.isEmpty())
        arguments.append({QStringLiteral("--channel"), channel});
    process_.start(QCoreApplication::applicationDirPath() + QStringLiteral("/audio_speaker"), arguments);
}

SpeakerLink::~SpeakerLink()
{
    process_.disconnect(this);
    endByClosedInput(process_);
}

void SpeakerLink::speak() { process_.write("speak\n"); }

void SpeakerLink::kill() { process_.kill(); }

void SpeakerLink::readLines()
{
    while (process_.canReadLine()) {
        const QJsonObject object = QJsonDocument::fromJson(process_.readLine()).object();
        const QString event = object.value(QLatin1String("event")).toString();
        if (event == QLatin1String("ready"))
            isReady_ = true;
        else if (event == QLatin1String("started"))
            startedMs_ = static_cast<qint64>(object.value(QLatin1String("atMs")).toDouble());
        else if (event == QLatin1String("finished"))
            hasFinished_ = true;
        emit changed();
    }
}

void SpeakerLink::noteEnd()
{
    if (process_.state() != QProcess::NotRunning)
        return;
    readLines();
    hasFailed_ = !hasFinished_;
    errorText_ = QString::fromUtf8(process_.readAllStandardError()).trimmed();
    if (errorText_.isEmpty() && hasFailed_)
        errorText_ = QStringLiteral("audio_speaker did not speak: %1").arg(process_.errorString());
    emit changed();
}

} // namespace host
