// SPDX-License-Identifier: Apache-2.0
#include "host/core/run_reason.h"

#include "contract/result_codes.h"
#include "host/core/verdict.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <optional>

namespace host {

namespace {

struct KnownReason {
    const char *key;
    const char *words;
};

// In the words that the operator, the check of the channels and the programs of both say them with. The first that fits is
// meant.
constexpr std::array<KnownReason, 59> knownReasons{{
    {"REASON_STOPPED", "the run was stopped"},
    {"REASON_TOOK_TOO_LONG", "the run took longer than five minutes"},
    {"REASON_VIRTUAL_DEVICE", "'%1' is a virtual device: a verdict on it says nothing about this machine"},
    {"PRECHECK_CLIPS_MISSING", "clips: those of the language %1 are missing"},
    {"PRECHECK_CLIP_DAMAGED", "clips: %1 is missing or is not the one that was supplied"},
    {"REASON_VIRTUAL_UNKNOWN", "the sound server does not answer: whether '%1' is a virtual device is not known"},
    {"PRECHECK_MICROPHONE_BLOCKED", "the privacy settings of the system keep programs from the microphone"},
    {"PRECHECK_SOURCE_MUTED", "the capture source '%1' is muted"},
    {"PRECHECK_SOURCE_AT_ZERO", "the volume of the capture source '%1' is 0"},
    {"REASON_ZEROS_ONLY", "'%1' delivers nothing but zeros: it is switched off, blocked or not connected"},
    {"REASON_SOURCE_TURNED_DOWN", "the capture source was muted or turned down"},
    {"REASON_SENTENCE_NOT_HEARD", "the sentence was not heard when it was spoken"},
    {"REASON_VOLUMES_HELD", "Another run is holding the volumes."},
    {"REASON_VOLUMES_HELD", "Another run is holding the volumes (guardian process %1)."},
    {"REASON_DEVICE_GONE", "the device '%1' disappeared"},
    {"REASON_LISTENER_LOST", "listener lost"},
    {"REASON_NOT_RECOGNISED", "not recognised"},
    {"REASON_SOURCE_DEAD", "the capture source delivers nothing"},
    {"REASON_VOLUME_NOT_RAISED", "the volume could not be raised"},
    {"REASON_NO_SUCH_SOURCE", "audio_listener: no capture source is named '%1' (there are: %2)"},
    {"REASON_NO_SUCH_MICROPHONE", "no microphone is named '%1' (there are: '%2')"},
    {"REASON_QUESTION_OPEN", "a question was left open"},
    {"REASON_SPEECH_DID_NOT_BEGIN", "the speech could not begin"},
    {"REASON_SPEECH_DID_NOT_BEGIN", "the sentence was not spoken in time"},
    {"REASON_NO_SPEAKER", "audio_speaker did not speak: %1"},
    {"REASON_DIALOG", "the dialog did not take the microphone"},
    {"REASON_DIALOG", "the dialog did not record"},
    {"REASON_DIALOG", "the dialog did not end its recording"},
    {"REASON_DIALOG", "the dialog did not end its playback"},
    {"REASON_DIALOG", "the dialog did not play again"},
    {"REASON_DIALOG", "the dialog did not go on"},
    {"REASON_DIALOG", "the dialog did not take the answer"},
    {"REASON_DIALOG", "the dialog did not play its sequence"},
    {"REASON_DIALOG", "the dialog could not be answered"},
    {"REASON_DIALOG", "the keypad does not answer"},
    {"REASON_ANSWERED_NO", "the question whether the same sound was heard was answered with no"},
    {"VERDICT_INVALID_CALL", "the test was not called properly"},
    {"REASON_ENDED_EARLY", "the test ended before it had a verdict"},
    {"REASON_NONE_GIVEN", "the test did not tell why"},
    {"REASON_CHANNEL_COUNT_UNKNOWN", "it is not known how many channels the source has"},
    {"REASON_ONE_CHANNEL", "the source has one channel only"},
    {"REASON_NOTHING_HEARD", "nothing was heard"},
    {"REASON_CHANNEL_SOFT", "one channel was too soft to be recognised, and too loud to be called silent"},
    {"REASON_SIDES_ALIKE", "the microphone hears both sides alike"},
    {"REASON_SOURCE_NOT_OPENED", "the source could not be listened to"},
    {"REASON_SOURCE_DEAD", "the source delivered no sound"},
    {"REASON_DEVICE_NOT_OPENED", "the device could not be opened"},
    {"REASON_DEVICE_DID_NOT_PLAY", "the device did not play"},
    {"REASON_RUN_NOT_TAKEN", "the run could not begin: another one is under way, or the device is gone"},
    {"REASON_HOST_BROKE_DOWN", "the graphical host ended without a verdict (has it a display?)"},
    {"REASON_HOST_HUNG", "the graphical host did not come to an end"},
    {"REASON_HOST_NOT_STARTED", "the graphical host cannot be started: %1"},
    {"REASON_NO_MODULE", "the graphical host cannot use the audio module"},
    {"REASON_NO_OUTPUT_DEVICE", "no output device was found"},
    {"REASON_NO_SERVER", "the sound server does not answer"},
    {"REASON_NO_DISPLAY", "the graphical host needs a display; try xvfb-run"},
    {"REASON_HEARS_ANOTHER", "'%1' hears another device than '%2', which would be blamed for its silence"},
    {"REASON_SERVER_SILENT", "audio_listener: no sound server: %1"},
    {"REASON_TOLD", "%1"},
}};

// At most two; the pattern names them in their order.
std::optional<QStringList> argumentsIn(const QString &words, const QString &pattern)
{
    QString expression = QRegularExpression::escape(pattern);
    expression.replace(QRegularExpression(QStringLiteral("\\\\%[12]")), QStringLiteral("(.*)"));
    const QRegularExpression whole(QRegularExpression::anchoredPattern(expression),
                                   QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = whole.match(words);
    return match.hasMatch() ? std::optional(match.capturedTexts().mid(1)) : std::nullopt;
}

RunReason known(const char *key) { return {QLatin1String(key), {}, reasonWords(key)}; }

// What the verdict alone tells.
RunReason impliedReason(const RunRecord &record)
{
    switch (verdictOf(record)) {
    case Verdict::failed:
        return known(record.testLetter == QLatin1String("m") ? "REASON_ANSWERED_NO" : "REASON_NONE_GIVEN");
    case Verdict::stopped:
        return known("REASON_STOPPED");
    case Verdict::invalidCall:
        return known("VERDICT_INVALID_CALL");
    case Verdict::notCompleted:
        return known("REASON_ENDED_EARLY");
    default:
        return known("REASON_NONE_GIVEN");
    }
}

// A note explains what was not completed, but after a failure it is a hint only.
bool isUnexplained(const RunRecord &record)
{
    const bool hasError = std::any_of(record.messages.begin(), record.messages.end(),
                                      [](const RunMessage &message) { return message.level == ostra::message_level::error; });
    return record.messages.isEmpty() || (verdictOf(record) == Verdict::failed && !hasError);
}

} // namespace

QString reasonWords(const char *key, const QStringList &arguments)
{
    const auto row = std::find_if(knownReasons.begin(), knownReasons.end(),
                                  [key](const KnownReason &reason) { return QLatin1String(reason.key) == QLatin1String(key); });
    if (row == knownReasons.end())
        return QLatin1String(key);
    return withArguments(QLatin1String(row->words), arguments);
}

// Both at once: an argument may hold a "%1" of its own.
QString withArguments(const QString &text, const QStringList &arguments)
{
    if (text.contains(QStringLiteral("%2")))
        return text.arg(arguments.value(0), arguments.value(1));
    return text.contains(QStringLiteral("%1")) ? text.arg(arguments.value(0)) : text;
}

RunReason reasonOf(const QString &words)
{
    for (const KnownReason &reason : knownReasons) {
        if (const auto arguments = argumentsIn(words, QLatin1String(reason.words)))
            return {QLatin1String(reason.key), *arguments, words};
    }
    return {};
}

QList<RunReason> reasonsOf(const RunRecord &record)
{
    if (verdictOf(record) == Verdict::passed)
        return {};
    if (!record.reason.isEmpty())
        return {reasonOf(record.reason)};
    QList<RunReason> reasons;
    if (isUnexplained(record))
        reasons.append(impliedReason(record));
    for (const RunMessage &message : record.messages)
        reasons.append({message.text, {}, {}});
    return reasons;
}

} // namespace host
