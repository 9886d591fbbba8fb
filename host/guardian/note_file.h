// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/endpoints/endpoint_volume.h"

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
    bool write(const ostra::audio::EndpointVolumes &volumes) const;
    /// What is noted; nothing without a note. A note that cannot be used is moved aside, with a line in the log.
    std::optional<ostra::audio::EndpointVolumes> read() const;
    void remove() const;

private:
    void refuse(const QString &complaint) const;

    QString folder_;
    QString path_;
};

/// The lock that says whose turn it is with the note and the volumes.
QString lockFilePath(const QString &folder);

} // namespace host
