// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/clip_check.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QHash>

#include <optional>

namespace host {

namespace {

using Manifest = QHash<QString, QByteArray>;

constexpr qsizetype hashLetters = 64;
constexpr qint64 longestLine = 4096;

std::optional<Manifest> readManifest(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    Manifest manifest;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine(longestLine).trimmed();
        if (line.size() > hashLetters + 2)
            manifest.insert(QString::fromUtf8(line.mid(hashLetters + 2)), line.left(hashLetters).toLower());
    }
    return manifest;
}

std::optional<QByteArray> hashOf(const QString &path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        return std::nullopt;
    return hash.result().toHex();
}

std::optional<ClipFault> faultOf(const QString &path, const QString &name, const std::optional<Manifest> &manifest)
{
    const std::optional<QByteArray> hash = hashOf(path);
    if (!hash)
        return ClipFault::missing;
    if (!manifest)
        return std::nullopt;
    if (!manifest->contains(name))
        return ClipFault::unlisted;
    return manifest->value(name) == *hash ? std::nullopt : std::optional(ClipFault::differs);
}

ClipCheck checkFiles(const QString &folder, const QStringList &names)
{
    const QDir clips(folder);
    const std::optional<Manifest> manifest = readManifest(clips.filePath(QStringLiteral("manifest.sha256")));
    ClipCheck check{manifest.has_value(), 0, {}};
    for (const QString &name : names) {
        if (const auto fault = faultOf(clips.filePath(name), name, manifest))
            check.faults.append({name, *fault});
        else
            ++check.intactCount;
    }
    return check;
}

} // namespace

ClipCheck checkClips(const QString &folder, const QStringList &languages)
{
    QStringList names;
    for (const QString &language : languages) {
        for (int digit = 0; digit < clipsPerLanguage; ++digit)
            names.append(QStringLiteral("%1/%2_%1.wav").arg(language).arg(digit));
    }
    return checkFiles(folder, names);
}

ClipCheck checkSentence(const QString &folder) { return checkFiles(folder, {QLatin1String(sentenceClip)}); }

} // namespace host
