// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/guardian_process.h"

#include "host/guardian/detached_start.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>

namespace host {

GuardianProcess::GuardianProcess()
{
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel); // its log is the host's
    prepareDetachedStart(process_);
}

bool GuardianProcess::start(const QString &stateFolder)
{
    const QDir folder(QCoreApplication::applicationDirPath());
    process_.start(folder.filePath(QStringLiteral("volume_guardian")), {stateFolder});
    return process_.waitForStarted();
}

std::optional<GuardianMessage> GuardianProcess::waitForMessage(std::chrono::milliseconds bound)
{
    const QDeadlineTimer deadline(bound);
    for (;;) {
        while (process_.canReadLine()) {
            if (auto message = fromLine(process_.readLine()))
                return message;
        }
        // The process's end also ends the wait, with everything it has written.
        if (!process_.waitForReadyRead(static_cast<int>(deadline.remainingTime())) && !process_.canReadLine())
            return std::nullopt;
    }
}

void GuardianProcess::sendFinish()
{
    process_.write(finishCommand);
    process_.waitForBytesWritten();
}

void GuardianProcess::end(std::chrono::milliseconds bound)
{
    process_.closeWriteChannel();
    if (isRunning() && !process_.waitForFinished(static_cast<int>(bound.count()))) {
        process_.kill();
        process_.waitForFinished();
    }
}

} // namespace host
