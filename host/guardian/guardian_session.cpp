// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/guardian_session.h"

#include "host/guardian/sound_server_name.h"

#include <QDir>

#include <algorithm>
#include <thread>
#include <utility>

using ostra::audio::EndpointVolume;
using ostra::audio::EndpointVolumes;

namespace host {

namespace {

// A guardian whose host has just crashed is done within this time.
constexpr std::chrono::milliseconds lockBound{1500};

// The owner of a lock file of this age is asked for by the system's own lock on the file, so that the file of a dead owner is
// taken over even where its process number is in use, or the file was never filled before the power went.
constexpr std::chrono::milliseconds staleLockAge{1000};

// What a killed host has sent to the sound server may still be on its way there.
constexpr std::chrono::milliseconds settlingTime{300};

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

GuardianSession::GuardianSession(const QString &stateFolder)
    : note_(stateFolder), lock_(lockFilePath(stateFolder)), folder_(stateFolder)
{
    lock_.setStaleLockTime(static_cast<int>(staleLockAge.count()));
}

bool GuardianSession::lock()
{
    if (QDir().mkpath(folder_) && lock_.tryLock(static_cast<int>(lockBound.count())))
        return true;
    isHeldByAnother_ = lock_.error() == QLockFile::LockFailedError;
    errorText_ = reasonWhyLocked(lock_);
    return false;
}

bool GuardianSession::readVolumes()
{
    saved_.clear();
    if (ostra::audio::readEndpointVolumes(saved_) != 0)
        return false;
    std::erase_if(saved_, [](const EndpointVolume &volume) { return volume.id.empty(); });
    return true;
}

bool GuardianSession::begin()
{
    if (!lock())
        return false;
    if (!noteVolumes())
        lock_.unlock();
    return errorText_.isEmpty();
}

// Where the former run's volumes did not come back, its note still knows them better than the endpoints do; where somebody has
// set another one since, the endpoint does.
void GuardianSession::keepUnrestored(const EndpointVolumes &former)
{
    EndpointVolumes unrestored = stillRaised(former, saved_);
    for (const EndpointVolume &record : former) {
        if (std::ranges::find(saved_, record.id, &EndpointVolume::id) == saved_.end())
            unrestored.push_back(record); // not there just now
    }
    saved_ = ostra::audio::withNewcomers(std::move(unrestored), saved_);
}

bool GuardianSession::noteVolumes()
{
    const QString server = soundServerName();
    const std::optional<VolumeNote> former = note_.readFor(server);
    const PutBack result = former ? putBackRaised(former->volumes) : PutBack{true, {}, {}};
    leftovers_ = result.names;
    if (!readVolumes()) {
        errorText_ = QStringLiteral("The sound system does not tell its volumes.");
        return false;
    }
    if (!result.isDone)
        keepUnrestored(former->volumes);
    if (note_.write({saved_, server}))
        return true;
    errorText_ = QStringLiteral("The volumes could not be noted in %1.").arg(QDir::toNativeSeparators(folder_));
    return false;
}

PutBack GuardianSession::end(Ending ending)
{
    PutBack result = putBack(saved_, guardianPatience);
    if (ending == Ending::hostsLoss && result.isDone) {
        std::this_thread::sleep_for(settlingTime);
        const PutBack later = putBack(saved_, oneTry);
        result.names += later.names;
        result.names.removeDuplicates();
        result.isDone = later.isDone;
    }
    if (result.isDone)
        note_.remove();
    lock_.unlock();
    return result;
}

PutBack putBackLeftovers(const QString &stateFolder, QString &complaint, NoteOwner owner)
{
    const NoteFile file(stateFolder);
    if (!file.isThere())
        return {true, {}, {}};
    QLockFile lock(lockFilePath(stateFolder));
    lock.setStaleLockTime(static_cast<int>(staleLockAge.count()));
    if (!lock.tryLock()) {
        complaint = reasonWhyLocked(lock);
        return {};
    }
    const std::optional<VolumeNote> note = file.readFor(soundServerName());
    if (!note)
        return {true, {}, {}};
    const PutBack result = owner == NoteOwner::thisRun ? putBack(note->volumes, oneTry) : putBackRaised(note->volumes);
    if (result.isDone)
        file.remove();
    else
        complaint = QStringLiteral("The volumes of an earlier run could not be put back yet.");
    return result;
}

} // namespace host
