// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/note_file.h"

#include "host/guardian/folder_sync.h"
#include "host/guardian/guardian_log.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace host {

NoteFile::NoteFile(const QString &folder) : folder_(folder), path_(QDir(folder).filePath(QStringLiteral("volume_note.json"))) {}

bool NoteFile::write(const VolumeNote &note) const
{
    const QByteArray text = toNote(note);
    QSaveFile file(path_);
    if (!QDir().mkpath(folder_) || !file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        return false;
    syncFolder(folder_);
    return true;
}

std::optional<VolumeNote> NoteFile::read() const
{
    const QFileInfo info(path_);
    if (!info.exists() && !info.isSymLink())
        return std::nullopt;
    QFile file(path_);
    QString complaint;
    if (!info.isFile() || info.size() > noteByteLimit) // neither wait for a pipe's bytes nor load a disk's worth of them
        complaint = QStringLiteral("it is no file of a note's size");
    else if (!file.open(QIODevice::ReadOnly))
        complaint = file.errorString();
    else if (auto note = fromNote(file.read(noteByteLimit), complaint))
        return note;
    file.close(); // before it is renamed
    refuse(complaint);
    return std::nullopt;
}

QString NoteFile::waitingPath(const QString &server) const
{
    const QByteArray hash = QCryptographicHash::hash(server.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QDir(folder_).filePath(QStringLiteral("volume_note.%1.waiting").arg(QLatin1String(hash.first(16))));
}

bool NoteFile::isThere() const
{
    const QFileInfo info(path_);
    return info.exists() || info.isSymLink() ||
           !QDir(folder_).entryList({QStringLiteral("volume_note.*.waiting")}, QDir::Files).isEmpty();
}

std::optional<VolumeNote> NoteFile::readFor(const QString &server) const
{
    auto note = read();
    if (note && !note->server.isEmpty() && !server.isEmpty() && note->server != server) {
        qCWarning(guardianLog, "a note of volumes belongs to another sound server (%s) and waits for that one",
                  qUtf8Printable(note->server));
        const QString path = waitingPath(note->server);
        QFile::remove(path);
        QDir().rename(path_, path);
        note.reset();
    }
    if (note || server.isEmpty() || !QDir().rename(waitingPath(server), path_))
        return note;
    return read();
}

void NoteFile::remove() const
{
    QFile::remove(path_);
    syncFolder(folder_);
}

void NoteFile::refuse(const QString &complaint) const
{
    const QFileInfo old(refusedPath());
    if (old.isDir() && !old.isSymLink())
        QDir(refusedPath()).removeRecursively();
    else
        QFile::remove(refusedPath());
    const bool isMoved = QDir().rename(path_, refusedPath());
    qCWarning(guardianLog, "the note of volumes %s is not used: %s; %s", qUtf8Printable(QDir::toNativeSeparators(path_)),
              qUtf8Printable(complaint), isMoved ? "it was moved aside" : "it could not be moved aside");
}

QString lockFilePath(const QString &folder) { return QDir(folder).filePath(QStringLiteral("volume_guardian.lock")); }

} // namespace host
