// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/channel_check.h"
#include "host/core/device_list.h"
#include "host/core/digit_measurement.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace host {

struct RunProgress {
    std::uint32_t percent = 0;
    QString text; ///< a key, a composite of keys, or empty
};

struct RunMessage {
    QString text;            ///< a key or a composite of keys
    std::uint32_t level = 0; ///< 2 explains a failure, 0 is a note
};

/// One digit of an unattended playback run.
struct HeardDigit {
    int sequence = 1;         ///< 1 or 2
    int position = 1;         ///< 1 to 3 within its sequence
    qint64 playedAtMs = 0;    ///< start of the sound, in milliseconds since the run began
    std::optional<int> heard; ///< 0 to 9; nothing when no digit was recognised
    std::optional<int> typed; ///< what was pressed on the keypad
    double score = 0.0;       ///< of the matched filter, 0 to 1
    double margin = 0.0;      ///< distance to the second best digit
    double latencyMs = 0.0;   ///< from the dialog's "playing" to the first sound; below zero when not known
    double levelDbfs = 0.0;   ///< RMS level of what was captured
    bool clipped = false;
    std::optional<DigitMeasurement> measured;
};

inline constexpr int recordingStepMs = 20;

/// What an unattended microphone run heard while the dialog played its recording back.
struct HeardRecording {
    QString microphone;              ///< as the dialog names it
    QString spokenThrough;           ///< output that the sentence was spoken through
    std::optional<qint64> heardAtMs; ///< beginning of the most alike place, in milliseconds since the run began
    double score = 0.0;              ///< of the matched filter, 0 to 1
    bool isFound = false;            ///< the sentence is in what was played back
    /// By how much later the sentence came within the playback than within the recording; both are counted from the moment at
    /// which the dialog began.
    std::optional<double> latencyMs;
    double levelDbfs = -120.0; ///< RMS level of the most alike place
    double peakDbfs = -120.0;  ///< highest sample of the playback
    bool isClipped = false;
    bool isSilent = true;        ///< nothing louder than -50 dBFS
    bool isMonoInStereo = false; ///< both channels hold the same, or one of them nothing
    QList<double> lowest;        ///< of each `recordingStepMs` of the playback, -1 to 1 of full scale
    QList<double> highest;       ///< as many
    std::optional<bool> answer;  ///< yes or no to the question; nothing when it was not asked
};

/// What the system told of the volume of a loudspeaker or a microphone.
struct EndpointState {
    int percent = 0; ///< of full volume, 0 to 100
    bool isMuted = false;
};

/// The same before and after a run; nothing where the system did not tell, or knows no such endpoint.
struct EndpointChange {
    std::optional<EndpointState> before;
    std::optional<EndpointState> after;
};

/// Where a run took place and by which programs; a text that is not known is empty.
struct Machine {
    QString hostName;
    QString system; ///< name and version of the operating system
    QString kernel; ///< name and version
    QString architecture;
    QString soundServer; ///< name and version; of Windows the name of its interface
    QString programVersion;
    QString moduleVersion;
};

/// One run of one test on one device, as it happened; what a report is written from.
struct RunRecord {
    QString testLetter;  ///< "p" or "m"
    QString testNameKey; ///< such as "AUDIO_PLAYBACK_TEST"
    Device device;
    QString microphone; ///< of the microphone test, as its dialog names it; empty where none was chosen or asked for
    QString language;   ///< code such as "en_US"
    QDateTime startedUtc;
    QDateTime endedUtc;
    bool wasModuleCalled = true;  ///< false: the host had to refuse, and `moduleCode` says nothing
    std::uint32_t moduleCode = 4; ///< what the module returned
    std::uint32_t code = 4;       ///< the verdict: 4 when the run was stopped, else `moduleCode`
    bool wasStopped = false;
    /// Why there is no verdict of the module's own, in the host's own English words (`reasonWords`) or those of one of its
    /// programs; empty otherwise.
    QString reason;
    QList<RunProgress> progress;
    QList<RunMessage> messages;
    bool isUnattended = false;
    QString listenedTo; ///< capture source of an unattended run
    QList<HeardDigit> digits;
    std::optional<HeardRecording> recording; ///< of an unattended microphone run
    std::optional<ChannelCheck> channels;    ///< the device's last check before the run
    QString keptAudio;                       ///< file with all that was heard; empty: no sound was kept
    QStringList screenshots;                 ///< files, absolute paths
    QStringList restoredVolumes;             ///< endpoints whose level the guardian had to put back
    QString volumeComplaint;                 ///< what the guardian could not do; empty when all went well
    EndpointChange deviceVolume;
    EndpointChange microphoneVolume; ///< of the microphone that the test took
    Machine machine;
};

} // namespace host
