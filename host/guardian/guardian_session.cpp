// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/guardian_session.h"

#include "host/guardian/guardian_log.h"
#include "host/guardian/sound_server_identity.h"

#include <QDir>

#include <algorithm>
#include <thread>
#include <utility>

using ostra::audio::EndpointVolume;
using ostra::audio::EndpointVolumes;

namespace host {

namespace {

// What a killed host has sent to the sound server may still be on its way there.
constexpr std::chrono::milliseconds settlingTime{300};

// Endpoints that never come back must not fill the note, which has a limit of its size.
constexpr std::size_t absentLimit = 64;

// An endpoint that was unplugged while its volume was raised comes back as loud: the system remembers that volume for it. Its
// own waits in the note for the next start.
void settleNote(const NoteFile &note, EndpointVolumes absent, const QString &server)
{
    if (absent.size() > absentLimit)
        absent.erase(absent.begin(), absent.end() - absentLimit); // the oldest come first
    const bool isAnyAbsent = !absent.empty();
    if (isAnyAbsent && note.write({std::move(absent), server}))
        return;
    if (isAnyAbsent)
        qCWarning(guardianLog, "the volumes of endpoints that are not there could not be noted and are forgotten");
    note.remove();
}

} // namespace

GuardianSession::GuardianSession(const QString &stateFolder) : note_(stateFolder), lock_(stateFolder), folder_(stateFolder) {}

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
    if (!lock_.take()) {
        errorText_ = lock_.errorText();
        return false;
    }
    if (!noteVolumes())
        lock_.giveBack();
    return errorText_.isEmpty();
}

// Where the former run's volumes did not come back, because the endpoint is not there or refused, its note still knows them
// better than the endpoints do; where somebody has set another one since, the endpoint does.
void GuardianSession::keepUnrestored(const EndpointVolumes &former)
{
    EndpointVolumes unrestored = stillRaised(former, saved_);
    for (const EndpointVolume &record : former) {
        if (std::ranges::find(saved_, record.id, &EndpointVolume::id) != saved_.end())
            continue;
        unrestored.push_back(record); // not there just now
        awaited_.push_back(record.id);
    }
    saved_ = ostra::audio::withNewcomers(std::move(unrestored), saved_);
}

bool GuardianSession::noteVolumes()
{
    server_ = soundServerIdentity();
    const std::optional<VolumeNote> former = note_.readFor(server_);
    if (former && server_.isEmpty())
        server_ = former->server; // not told just now
    const PutBack result = former ? putBackRaised(former->volumes) : PutBack{};
    leftovers_ = result.names;
    if (!readVolumes()) {
        errorText_ = QStringLiteral("The sound system does not tell its volumes.");
        return false;
    }
    if (former)
        keepUnrestored(former->volumes);
    if (note_.write({saved_, server_}))
        return true;
    errorText_ = QStringLiteral("The volumes could not be noted in %1.").arg(QDir::toNativeSeparators(folder_));
    return false;
}

// An endpoint that came back during the run may have been set by its owner since its volume was noted: only where it stands
// raised, the note is about it.
void GuardianSession::leaveWhatCameBackChanged()
{
    EndpointVolumes current;
    if (awaited_.empty() || ostra::audio::readEndpointVolumes(current) != 0)
        return;
    const EndpointVolumes raised = stillRaised(saved_, current);
    const auto isIn = [](const EndpointVolumes &list, const std::u16string &id) {
        return std::ranges::find(list, id, &EndpointVolume::id) != list.end();
    };
    std::erase_if(saved_, [&](const EndpointVolume &record) {
        return std::ranges::find(awaited_, record.id) != awaited_.end() && isIn(current, record.id) && !isIn(raised, record.id);
    });
}

PutBack GuardianSession::end(Ending ending)
{
    leaveWhatCameBackChanged();
    PutBack result = putBack(saved_, guardianPatience);
    if (ending == Ending::hostsLoss && result.isDone) {
        std::this_thread::sleep_for(settlingTime);
        PutBack later = putBack(saved_, oneTry);
        result.names += later.names;
        result.names.removeDuplicates();
        result.isDone = later.isDone;
        result.absent = std::move(later.absent);
    }
    if (result.isDone)
        settleNote(note_, result.absent, server_);
    lock_.giveBack();
    return result;
}

PutBack putBackLeftovers(const QString &stateFolder, QString &complaint, NoteOwner owner)
{
    const NoteFile file(stateFolder);
    if (!file.isThere())
        return {true, {}, {}, {}};
    VolumeLock lock(stateFolder);
    if (!lock.take(std::chrono::milliseconds::zero())) {
        complaint = lock.errorText();
        return {};
    }
    const QString server = soundServerIdentity();
    const std::optional<VolumeNote> note = file.readFor(server);
    if (!note)
        return {true, {}, {}, {}};
    const PutBack result = owner == NoteOwner::thisRun ? putBack(note->volumes, oneTry) : putBackRaised(note->volumes);
    if (result.isDone)
        settleNote(file, result.absent, server.isEmpty() ? note->server : server);
    else
        complaint = QStringLiteral("The volumes of an earlier run could not be put back yet.");
    return result;
}

} // namespace host
