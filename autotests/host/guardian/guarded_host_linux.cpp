// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/guardian/guarded_host_linux.h"

#include "host/guardian/note_file.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLockFile>

#include <unistd.h>

#include <csignal>

namespace {

constexpr int lineLimitMilliseconds = 60'000;

// 0 when nobody holds the lock.
pid_t lockOwner(const QString &stateFolder)
{
    const QLockFile lock(host::lockFilePath(stateFolder));
    qint64 process = 0;
    QString computer;
    QString program;
    return lock.getLockInfo(&process, &computer, &program) ? static_cast<pid_t>(process) : 0;
}

} // namespace

GuardedHost::GuardedHost(QString stateFolder, Log log) : stateFolder_(std::move(stateFolder))
{
    process_.setChildProcessModifier([] { setpgid(0, 0); });
    if (log == Log::toFile)
        process_.setStandardErrorFile(logPath());
    else
        process_.closeReadChannel(QProcess::StandardError);
}

GuardedHost::~GuardedHost()
{
    process_.kill();
    process_.waitForFinished();
}

QString GuardedHost::logPath() const { return stateFolder_ + QStringLiteral("/log"); }

QByteArray GuardedHost::log() const
{
    QFile file(logPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString GuardedHost::start()
{
    process_.start(QCoreApplication::applicationDirPath() + QStringLiteral("/../hold_volumes/" HOLD_VOLUMES), {stateFolder_});
    return readLine();
}

QString GuardedHost::finish()
{
    process_.write("finish\n");
    const QString putBack = readLine();
    return putBack + QStringLiteral("; ") + readLine();
}

QString GuardedHost::readLine()
{
    QElapsedTimer timer;
    timer.start();
    while (!process_.canReadLine() && timer.elapsed() < lineLimitMilliseconds) {
        if (!process_.waitForReadyRead(lineLimitMilliseconds) && !process_.canReadLine())
            break;
    }
    return QString::fromUtf8(process_.readLine()).trimmed();
}

void GuardedHost::kill(int signalNumber) { ::kill(static_cast<pid_t>(process_.processId()), signalNumber); }

void GuardedHost::killGroup(int signalNumber) { ::kill(-static_cast<pid_t>(process_.processId()), signalNumber); }

void GuardedHost::killGuardian(int signalNumber)
{
    const pid_t guardian = lockOwner(stateFolder_);
    if (guardian <= 1) // signals to these numbers reach more than one process
        qFatal("the guardian is unknown");
    ::kill(guardian, signalNumber);
}

bool GuardedHost::isGuarded(const QString &stateFolder)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(lockOwner(stateFolder)));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray status = file.readAll();
    return !status.mid(status.lastIndexOf(')') + 2).startsWith('Z'); // nobody may collect a lost process
}
