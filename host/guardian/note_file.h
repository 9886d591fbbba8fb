// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/guardian/volume_note.h"

#include <QString>

#include <optional>

namespace host {

/// The note of the volumes on disk. Whoever holds the state folder's lock may use it.
class NoteFile {
public:
    explicit NoteFile(const QString &folder);

    QString path() const { return path_; }
    /// Where a note goes that was refused. One is kept.
    QString refusedPath() const { return path_ + QStringLiteral(".refused"); }

    /// Whole or not at all, and on the disk when this returns true. Makes the folder.
    bool write(const VolumeNote &note) const;
    /// What is noted; nothing without a note. A note that cannot be used is moved aside, with a line in the log.
    std::optional<VolumeNote> read() const;
    /// What is noted for the endpoints of `server`. The note of another one waits in a file of its own until that server is the
    /// one again; without a name on one of the sides they count as the same.
    std::optional<VolumeNote> readFor(const QString &server) const;
    void remove() const;

    /// Whether there is something to read, for this server or another.
    bool isThere() const;

private:
    QString waitingPath(const QString &server) const;
    void refuse(const QString &complaint) const;

    QString folder_;
    QString path_;
};

/// The lock that says whose turn it is with the note and the volumes.
QString lockFilePath(const QString &folder);

} // namespace host
