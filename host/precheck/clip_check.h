// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace host {

enum class ClipFault {
    missing,  ///< or unreadable
    differs,  ///< is not the file that was supplied
    unlisted, ///< the manifest does not name it, so nobody can tell
};

struct FaultyClip {
    QString file; ///< such as "en_US/7_en_US.wav"
    ClipFault fault = ClipFault::missing;
};

/// How the clips of some languages compare with the manifest that was shipped with them.
struct ClipCheck {
    bool hasManifest = false;
    int intactCount = 0;
    QList<FaultyClip> faults; ///< without a manifest only what is missing

    bool isIntact() const { return hasManifest && faults.isEmpty(); }
};

inline constexpr int clipsPerLanguage = 10;

/// Compares the ten clips of each language in `folder` with "manifest.sha256" there: lines of a SHA-256 in hexadecimal, two
/// blanks and a path below `folder`. Reads 120 kB a clip; any thread.
ClipCheck checkClips(const QString &folder, const QStringList &languages);

/// The sentence that is spoken in a microphone run with nobody there, below the folder of the clips.
inline constexpr auto sentenceClip = "operator/sentence_en_US.wav";

/// Compares it in the same way.
ClipCheck checkSentence(const QString &folder);

} // namespace host
