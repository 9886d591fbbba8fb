// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/guardian/note_file.h"
#include "host/guardian/put_back.h"
#include "host/guardian/volume_lock.h"

#include <QString>

#include <string>
#include <vector>

namespace host {

/// The guardian's work from the noting to the putting back, without its process and pipes. One at a time per state folder, on
/// one thread. Its end alone puts nothing back and leaves the note.
class GuardianSession {
public:
    enum class Ending {
        normal,    ///< the run is over, the module has restored what it could
        hostsLoss, ///< the host may have been stopped in the midst of a change
    };

    explicit GuardianSession(const QString &stateFolder);

    /// Takes the folder's lock, puts back what a former run left, notes every volume in memory and on the disk. False with
    /// `errorText()`: then there is no new note.
    bool begin();
    const QString &errorText() const noexcept { return errorText_; }
    /// Whether that was because another guardian is at work.
    bool isHeldByAnother() const noexcept { return lock_.isHeldByAnother(); }
    /// Endpoints that a former run had left at another volume.
    const QStringList &leftovers() const noexcept { return leftovers_; }

    /// Puts back whatever differs. When that succeeded, the note keeps only the endpoints that are not there just now, or goes
    /// where there is none. The lock is given back in any case.
    PutBack end(Ending ending);

private:
    bool noteVolumes();
    bool readVolumes();
    void keepUnrestored(const ostra::audio::EndpointVolumes &former);
    void leaveWhatCameBackChanged();

    NoteFile note_;
    VolumeLock lock_;
    QString folder_;
    QString server_;
    QString errorText_;
    QStringList leftovers_;
    ostra::audio::EndpointVolumes saved_;
    std::vector<std::u16string> awaited_; ///< endpoints of earlier runs that were not there at the beginning
};

/// Whose note it is that is left.
enum class NoteOwner {
    thisRun,   ///< whose guardian was lost: everything that differs is put back
    formerRun, ///< as `putBackRaised`
};

/// Puts back what a note holds that no guardian looks after, in one try, and settles the note, as `GuardianSession::end` does,
/// if that succeeded; else `complaint` says why not. Not done, without a try, while another guardian is at work: that one does
/// it itself. A note of another sound server stays for that one.
PutBack putBackLeftovers(const QString &stateFolder, QString &complaint, NoteOwner owner = NoteOwner::formerRun);

} // namespace host
