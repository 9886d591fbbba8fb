// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/guardian_session.h"

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
    const QString server = soundServerIdentity();
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
    lock_.giveBack();
    return result;
}

PutBack putBackLeftovers(const QString &stateFolder, QString &complaint, NoteOwner owner)
{
    const NoteFile file(stateFolder);
    if (!file.isThere())
        return {true, {}, {}};
    VolumeLock lock(stateFolder);
    if (!lock.take(std::chrono::milliseconds::zero())) {
        complaint = lock.errorText();
        return {};
    }
    const std::optional<VolumeNote> note = file.readFor(soundServerIdentity());
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
