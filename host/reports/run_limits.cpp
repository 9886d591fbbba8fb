// SPDX-License-Identifier: Apache-2.0
#include "host/reports/run_limits.h"

#include "host/core/capture_source.h"
#include "host/core/verdict.h"

#include <algorithm>

namespace host {

namespace {

QStringList limitsOfMonitor()
{
    return {QStringLiteral(
                "A monitor hears what the sound server passes on: this run proves the digital path up to the sound server, "
                "not the amplifier, the cable or the loudspeaker."),
            QStringLiteral("The levels are those of the digital signal, not of a sound.")};
}

bool isLoopback(const QString &source) { return !loopbackDevice(source).isEmpty(); }

QStringList limitsOfLoopback()
{
    return {
        QStringLiteral("A loopback hears what the system's mixer hands to the device: this run proves the digital path up to "
                       "that mixer, not the device's own volume, the amplifier, the plug, the cable or the loudspeaker."),
        QStringLiteral("The levels are those of the digital signal, not of a sound.")};
}

QStringList limitsOfMicrophone()
{
    return {
        QStringLiteral(
            "A microphone hears the room: a digit that was not recognised may be the fault of the microphone, of its "
            "place or of noise, and what was recognised may have come from another loudspeaker."),
        QStringLiteral("The levels depend on the microphone and its distance: they do not measure how loud the device is.")};
}

bool wasSilent(const RunRecord &record)
{
    return !record.digits.isEmpty() && std::none_of(record.digits.begin(), record.digits.end(), [](const HeardDigit &digit) {
        return digit.heard || digit.playedAtMs >= 0;
    });
}

QStringList limitsOfSilence()
{
    return {
        QStringLiteral("Nothing was heard: a source that is muted or hears another device cannot be told from a silent "
                       "device."),
        QStringLiteral("The volumes were read between the digits only: where they changed meanwhile, or the system does not "
                       "tell its true volumes, a device that was not raised looks like a silent one.")};
}

QStringList limitsOfListening(const RunRecord &record)
{
    QStringList limits = isLoopback(record.listenedTo)  ? limitsOfLoopback()
                         : isMonitor(record.listenedTo) ? limitsOfMonitor()
                                                        : limitsOfMicrophone();
    if (wasSilent(record))
        limits.append(limitsOfSilence());
    limits.append(
        QStringLiteral("What was heard was compared with the very clips that were played: a clip that is wrong itself "
                       "goes unnoticed."));
    limits.append(QStringLiteral("Digits were compared below 4 kHz: what the device does to higher tones is not known."));
    limits.append(
        QStringLiteral("A latency reaches from the dialog's display to the capture: it includes opening the device and "
                       "is good to a tenth of a second, by which a sound server works ahead or behind."));
    return limits;
}

QString limitOfChannels(const RunRecord &record)
{
    if (!record.channels || record.channels->mapping == ChannelMapping::notMeasurable)
        return QStringLiteral("All channels play the same speech: a silent or swapped channel can go unnoticed.");
    return record.channels->source.isEmpty() || isMonitor(record.channels->source)
               ? QStringLiteral(
                     "Front left and front right were checked before the run, at the user's volume; the verdict does "
                     "not count it.")
               : QStringLiteral("Front left and front right were checked before the run, at the user's volume, by the "
                                "microphone's own left and right, which swap when it is turned round; the verdict does not "
                                "count it.");
}

QStringList limitsOfPlayback(const RunRecord &record)
{
    QStringList limits = record.isUnattended
                             ? limitsOfListening(record)
                             : QStringList{QStringLiteral("A person said what was heard: nothing was measured.")};
    limits.append(QStringLiteral("One device was tested: the machine's other outputs were not."));
    limits.append(QStringLiteral("Only the first second of each clip was played."));
    limits.append(QStringLiteral("The device was tested at full volume only."));
    limits.append(limitOfChannels(record));
    return limits;
}

QString limitOfPlaybackEar(const QString &source)
{
    if (isLoopback(source))
        return QStringLiteral(
            "A loopback heard the playback: this run proves the digital path up to the system's mixer, not the "
            "device's own volume, the amplifier, the plug, the cable or the loudspeaker.");
    return isMonitor(source)
               ? QStringLiteral("A monitor heard the playback: this run proves the digital path up to the sound server, "
                                "not the amplifier, the cable or the loudspeaker.")
               : QStringLiteral("A microphone heard the playback: what it heard may have come from another "
                                "loudspeaker, and its levels depend on its distance.");
}

QStringList limitsOfMicrophoneTest(const RunRecord &record)
{
    QStringList limits{QStringLiteral("One microphone was tested: the machine's other inputs were not."),
                       QStringLiteral("A recording that sounds wrong can be the fault of the device that plays it.")};
    if (!record.isUnattended) {
        limits.append(QStringLiteral("A person compared the sounds: nothing was measured."));
        return limits;
    }
    limits.append(QStringLiteral("The sentence was spoken by a loudspeaker: a recording without it can be the fault of that "
                                 "loudspeaker, of its volume or of its distance."));
    limits.append(QStringLiteral("Only the first five seconds of what the microphone hears were recorded."));
    limits.append(limitOfPlaybackEar(record.listenedTo));
    limits.append(QStringLiteral("The sentence was compared below 4 kHz: what happens to higher tones is not known."));
    limits.append(QStringLiteral("The latency is the delay of the playback beyond that of the recording; a sound server works "
                                 "a tenth of a second ahead or behind, so it can be below zero."));
    limits.append(QStringLiteral("The same in both channels is what a microphone with one capsule delivers: it is no fault."));
    return limits;
}

bool hasHeardNothing(const RunRecord &record) { return record.isUnattended && record.digits.isEmpty() && !record.recording; }

bool isJudged(const RunRecord &record)
{
    const Verdict verdict = verdictOf(record);
    return verdict == Verdict::passed || verdict == Verdict::failed;
}

} // namespace

QStringList runLimits(const RunRecord &record)
{
    if (!record.wasModuleCalled)
        return {QStringLiteral("Nothing was played and heard: this run says nothing about the device.")};
    if (isJudged(record) && hasHeardNothing(record))
        return {QStringLiteral("Nothing was heard of what was played: this run says nothing about the device.")};
    if (!record.isUnattended && !isJudged(record))
        return {QStringLiteral("Nobody judged what was played: this run says nothing about the device.")};
    const QString noVerdict = QStringLiteral("The run ended before a verdict: this run says nothing about the device.");
    if (hasHeardNothing(record))
        return {noVerdict};
    QStringList limits = record.testLetter == QLatin1String("m") ? limitsOfMicrophoneTest(record) : limitsOfPlayback(record);
    if (!isJudged(record))
        limits.prepend(noVerdict);
    return limits;
}

} // namespace host
