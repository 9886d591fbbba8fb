// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/volume_lock.h"

#include "host/guardian/note_file.h"

#include <QDir>

namespace host {

namespace {

// The owner of a lock file of this age is asked for by the system's own lock on the file, so that the file of a dead owner is
// taken over even where its process number is in use, or the file was never filled before the power went.
constexpr std::chrono::milliseconds staleLockAge{1000};

QString reasonWhyLocked(const QLockFile &lock)
{
    if (lock.error() != QLockFile::LockFailedError)
        return QStringLiteral("The folder for the note of the volumes cannot be used.");
    qint64 process = 0;
    QString computer;
    QString program;
    if (!lock.getLockInfo(&process, &computer, &program))
        return QStringLiteral("Another run is holding the volumes.");
    return QStringLiteral("Another run is holding the volumes (guardian process %1).").arg(process);
}

} // namespace

VolumeLock::VolumeLock(const QString &stateFolder) : folder_(stateFolder), lock_(lockFilePath(stateFolder))
{
    lock_.setStaleLockTime(static_cast<int>(staleLockAge.count()));
}

bool VolumeLock::take(std::chrono::milliseconds wait)
{
    errorText_.clear();
    isHeldByAnother_ = false;
    if (QDir().mkpath(folder_) && lock_.tryLock(static_cast<int>(wait.count())))
        return true;
    isHeldByAnother_ = lock_.error() == QLockFile::LockFailedError;
    errorText_ = reasonWhyLocked(lock_);
    return false;
}

} // namespace host
