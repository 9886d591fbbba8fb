// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>

namespace host {

enum class Precheck {
    soundServerSilent,
    deviceMuted,
    deviceAtZero,
    clipsMissing,
    clipDamaged,
    clipsUnchecked,
    microphoneBlocked,
    sourceMuted,
    sourceAtZero,
};

/// Something that the reader of a verdict should know before the run. Nothing was changed.
struct PrecheckFinding {
    Precheck what = Precheck::deviceMuted;
    QString subject; ///< the device, the language or the file it is about; may be empty
    /// Whether a run would blame the device for it: it must not take place, and its result is 3.
    bool isBlocking() const;
    bool isUnattended = false; ///< nobody is there who could open the microphone or hear the difference
};

struct PrecheckQuestion {
    QString device;           ///< name of the device under test, as the sound library lists it
    QString clipsFolder;      ///< holds one folder a language
    QString language;         ///< code; empty: the clips are not looked at
    bool isRecording = false; ///< a microphone takes part
    QString source = {};      ///< name of the capture source that is listened to; empty: a person listens
    bool isSpeaking = false;  ///< the sentence is spoken
};

/// Looks at the device, the source, the clips and the microphone's switch; 6 s at most, without a sound server. A device that
/// the system does not know by that name has no findings of its own. Any thread.
QList<PrecheckFinding> checkBeforeRun(const PrecheckQuestion &question);

/// Key of the finding's sentence, such as "PRECHECK_DEVICE_MUTED"; "%1" in its translation stands for the subject.
const char *precheckKey(Precheck what) noexcept;
/// The sentence in the language in force, by the translations of the context "HOST".
QString precheckText(const PrecheckFinding &finding);

} // namespace host
