// SPDX-License-Identifier: Apache-2.0
#include "host/reports/run_report.h"

#include "contract/result_codes.h"
#include "host/core/run_reason.h"
#include "host/core/run_warning.h"
#include "host/core/verdict.h"
#include "host/reports/report_formats.h"
#include "host/reports/run_limits.h"
#include "host/translations/key_sentences.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <algorithm>
#include <cmath>
#include <optional>

namespace host {

namespace {

double rounded(double value, double steps) { return std::round(value * steps) / steps; }

QJsonValue momentOf(const QDateTime &time)
{
    return time.isValid() ? QJsonValue(time.toUTC().toString(Qt::ISODateWithMs)) : QJsonValue();
}

QJsonValue digitOrNull(const std::optional<int> &digit) { return digit ? QJsonValue(*digit) : QJsonValue(); }

QJsonValue knownOrNull(double value) { return value >= 0 ? QJsonValue(std::round(value)) : QJsonValue(); }

QJsonObject deviceOf(const Device &device)
{
    QJsonArray properties;
    for (const auto &[key, value] : device.properties)
        properties.append(QJsonObject{{QStringLiteral("key"), key}, {QStringLiteral("value"), value}});
    return {
        {QStringLiteral("name"), device.name}, {QStringLiteral("id"), device.id}, {QStringLiteral("properties"), properties}};
}

QString translated(const QString &key, const TextLookup &lookUp) { return lookUp && !key.isEmpty() ? lookUp(key) : key; }

QString translatedReason(const RunReason &reason, const TextLookup &lookUp)
{
    return withArguments(translated(reason.key, lookUp), reason.arguments);
}

QJsonArray progressOf(const RunRecord &record, const TextLookup &lookUp)
{
    QJsonArray steps;
    for (const RunProgress &step : record.progress)
        steps.append(QJsonObject{{QStringLiteral("percent"), static_cast<qint64>(step.percent)},
                                 {QStringLiteral("text"), step.text},
                                 {QStringLiteral("translated"), translated(step.text, lookUp)}});
    return steps;
}

QJsonArray messagesOf(const RunRecord &record, const TextLookup &lookUp)
{
    QJsonArray messages;
    for (const RunMessage &message : record.messages)
        messages.append(QJsonObject{{QStringLiteral("level"), static_cast<qint64>(message.level)},
                                    {QStringLiteral("text"), message.text},
                                    {QStringLiteral("translated"), translated(message.text, lookUp)}});
    return messages;
}

QJsonValue measuredOrNull(const std::optional<double> &value, double steps)
{
    return value ? QJsonValue(rounded(*value, steps)) : QJsonValue();
}

QJsonArray listOf(const QList<double> &values, double steps)
{
    QJsonArray list;
    for (const double value : values)
        list.append(rounded(value, steps));
    return list;
}

QJsonValue measurementOf(const std::optional<DigitMeasurement> &measured)
{
    if (!measured)
        return {};
    return QJsonObject{{QStringLiteral("snrDb"), measuredOrNull(measured->snrDb, 10)},
                       {QStringLiteral("residualDbfs"), measuredOrNull(measured->residualDbfs, 10)},
                       {QStringLiteral("clockErrorPpm"), measuredOrNull(measured->clockErrorPpm, 10)},
                       {QStringLiteral("peakDbfs"), rounded(measured->peakDbfs, 10)},
                       {QStringLiteral("channelDbfs"), listOf(measured->channelDbfs, 10)},
                       {QStringLiteral("clippedFrameCount"), measured->clippedFrameCount},
                       {QStringLiteral("envelopeStepMs"), envelopeStepMs},
                       {QStringLiteral("lowest"), listOf(measured->lowest, 10'000)},
                       {QStringLiteral("highest"), listOf(measured->highest, 10'000)},
                       {QStringLiteral("lowestBandHz"), lowestBandHz},
                       {QStringLiteral("bandLevelsDbfs"), listOf(measured->bandLevelsDbfs, 10)}};
}

QJsonObject digitRow(const RunRecord &record, const HeardDigit &digit)
{
    return {{QStringLiteral("sequence"), digit.sequence},
            {QStringLiteral("position"), digit.position},
            {QStringLiteral("playedAtMs"), knownOrNull(static_cast<double>(digit.playedAtMs))},
            {QStringLiteral("played"), digitOrNull(playedDigit(record, digit))},
            {QStringLiteral("heard"), digitOrNull(digit.heard)},
            {QStringLiteral("typed"), digitOrNull(digit.typed)},
            {QStringLiteral("score"), rounded(digit.score, 10'000)},
            {QStringLiteral("margin"), rounded(digit.margin, 10'000)},
            {QStringLiteral("latencyMs"), knownOrNull(digit.latencyMs)},
            {QStringLiteral("levelDbfs"), rounded(digit.levelDbfs, 10)},
            {QStringLiteral("clipped"), digit.clipped},
            {QStringLiteral("measured"), measurementOf(digit.measured)}};
}

QJsonArray digitsOf(const RunRecord &record)
{
    QJsonArray rows;
    for (const HeardDigit &digit : record.digits)
        rows.append(digitRow(record, digit));
    return rows;
}

QJsonValue latencyOf(const QList<HeardDigit> &digits)
{
    QList<double> latencies;
    for (const HeardDigit &digit : digits) {
        if (digit.latencyMs >= 0)
            latencies.append(std::round(digit.latencyMs));
    }
    if (latencies.isEmpty())
        return {};
    std::sort(latencies.begin(), latencies.end());
    const qsizetype middle = latencies.size() / 2;
    const bool isEven = latencies.size() % 2 == 0;
    return QJsonObject{
        {QStringLiteral("digitCount"), latencies.size()},
        {QStringLiteral("lowestMs"), latencies.first()},
        {QStringLiteral("medianMs"), isEven ? (latencies[middle - 1] + latencies[middle]) / 2 : latencies[middle]},
        {QStringLiteral("highestMs"), latencies.last()}};
}

QJsonValue recordingOf(const std::optional<HeardRecording> &heard)
{
    if (!heard)
        return {};
    return QJsonObject{
        {QStringLiteral("microphone"), heard->microphone},
        {QStringLiteral("spokenThrough"), heard->spokenThrough},
        {QStringLiteral("heardAtMs"), heard->heardAtMs ? QJsonValue(*heard->heardAtMs) : QJsonValue()},
        {QStringLiteral("score"), rounded(heard->score, 10'000)},
        {QStringLiteral("found"), heard->isFound},
        {QStringLiteral("latencyMs"), heard->latencyMs ? QJsonValue(std::round(*heard->latencyMs)) : QJsonValue()},
        {QStringLiteral("levelDbfs"), rounded(heard->levelDbfs, 10)},
        {QStringLiteral("peakDbfs"), rounded(heard->peakDbfs, 10)},
        {QStringLiteral("clipped"), heard->isClipped},
        {QStringLiteral("silent"), heard->isSilent},
        {QStringLiteral("monoInStereo"), heard->isMonoInStereo},
        {QStringLiteral("envelopeStepMs"), recordingStepMs},
        {QStringLiteral("lowest"), listOf(heard->lowest, 1000)},
        {QStringLiteral("highest"), listOf(heard->highest, 1000)},
        {QStringLiteral("answer"),
         heard->answer ? QJsonValue(*heard->answer ? QStringLiteral("yes") : QStringLiteral("no")) : QJsonValue()}};
}

QJsonValue sideOrNull(const std::optional<HeardSide> &side) { return side ? QJsonValue(sideName(*side)) : QJsonValue(); }

QJsonValue levelsOrNull(const std::optional<SideLevels> &levels)
{
    return levels ? QJsonValue(QJsonArray{rounded(levels->leftDbfs, 10), rounded(levels->rightDbfs, 10)}) : QJsonValue();
}

QJsonValue channelsOf(const std::optional<ChannelCheck> &check, const TextLookup &lookUp)
{
    if (!check)
        return {};
    const RunReason reason = check->reason.isEmpty() ? RunReason() : reasonOf(check->reason);
    return QJsonObject{{QStringLiteral("mapping"), mappingName(check->mapping)},
                       {QStringLiteral("source"), check->source},
                       {QStringLiteral("leftHeard"), sideOrNull(check->left)},
                       {QStringLiteral("rightHeard"), sideOrNull(check->right)},
                       {QStringLiteral("leftDbfs"), levelsOrNull(check->ofLeft)},
                       {QStringLiteral("rightDbfs"), levelsOrNull(check->ofRight)},
                       {QStringLiteral("reason"), check->reason},
                       {QStringLiteral("reasonKey"), reason.key},
                       {QStringLiteral("reasonTranslated"), translatedReason(reason, lookUp)}};
}

QJsonValue percentOf(const std::optional<EndpointState> &state) { return state ? QJsonValue(state->percent) : QJsonValue(); }

QJsonValue muteOf(const std::optional<EndpointState> &state) { return state ? QJsonValue(state->isMuted) : QJsonValue(); }

QJsonObject volumeOf(const EndpointChange &volume)
{
    return {{QStringLiteral("percentBefore"), percentOf(volume.before)},
            {QStringLiteral("mutedBefore"), muteOf(volume.before)},
            {QStringLiteral("percentAfter"), percentOf(volume.after)},
            {QStringLiteral("mutedAfter"), muteOf(volume.after)}};
}

QJsonValue textOrNull(const QString &text) { return text.isEmpty() ? QJsonValue() : QJsonValue(text); }

QJsonObject machineOf(const Machine &machine)
{
    return {{QStringLiteral("hostName"), textOrNull(machine.hostName)},
            {QStringLiteral("system"), textOrNull(machine.system)},
            {QStringLiteral("kernel"), textOrNull(machine.kernel)},
            {QStringLiteral("architecture"), textOrNull(machine.architecture)},
            {QStringLiteral("soundServer"), textOrNull(machine.soundServer)},
            {QStringLiteral("programVersion"), textOrNull(machine.programVersion)},
            {QStringLiteral("moduleVersion"), textOrNull(machine.moduleVersion)}};
}

QString wordsOf(const RunReason &reason)
{
    return reason.words.isEmpty() ? withArguments(keySentences(reason.key, englishText).join(u' '), reason.arguments)
                                  : reason.words;
}

QJsonArray warningsIn(const RunRecord &record, const TextLookup &lookUp)
{
    QJsonArray list;
    const QList<RunReason> warnings = warningsOf(record);
    for (const RunReason &warning : warnings)
        list.append(QJsonObject{{QStringLiteral("key"), warning.key},
                                {QStringLiteral("text"), wordsOf(warning)},
                                {QStringLiteral("translated"), translatedReason(warning, lookUp)}});
    return list;
}

// Whoever worked the dialogs; nobody did where there were none.
QJsonValue answererOf(const RunRecord &record)
{
    if (!record.wasModuleCalled)
        return {};
    return record.isUnattended ? QStringLiteral("operator program") : QStringLiteral("person");
}

QJsonObject bodyOf(const RunRecord &record, const TextLookup &lookUp)
{
    const std::uint32_t code = codeOf(verdictOf(record));
    return {{QStringLiteral("formatVersion"), reportFormatVersion},
            {QStringLiteral("test"), QJsonObject{{QStringLiteral("letter"), record.testLetter},
                                                 {QStringLiteral("nameKey"), record.testNameKey},
                                                 {QStringLiteral("translated"), translated(record.testNameKey, lookUp)}}},
            {QStringLiteral("device"), deviceOf(record.device)},
            {QStringLiteral("microphone"), record.microphone},
            {QStringLiteral("language"), record.language},
            {QStringLiteral("startedUtc"), momentOf(record.startedUtc)},
            {QStringLiteral("endedUtc"), momentOf(record.endedUtc)},
            {QStringLiteral("verdict"),
             QJsonObject{{QStringLiteral("code"), static_cast<qint64>(code)}, {QStringLiteral("name"), resultName(code)}}},
            {QStringLiteral("moduleCode"),
             record.wasModuleCalled ? QJsonValue(static_cast<qint64>(record.moduleCode)) : QJsonValue()},
            {QStringLiteral("stopped"), record.wasStopped},
            {QStringLiteral("progress"), progressOf(record, lookUp)},
            {QStringLiteral("messages"), messagesOf(record, lookUp)},
            {QStringLiteral("unattended"), record.isUnattended},
            {QStringLiteral("listenedTo"), record.listenedTo},
            {QStringLiteral("digits"), digitsOf(record)},
            {QStringLiteral("latency"), latencyOf(record.digits)},
            {QStringLiteral("recording"), recordingOf(record.recording)},
            {QStringLiteral("channelMapping"), channelsOf(record.channels, lookUp)},
            {QStringLiteral("volumesPutBackByGuardian"), QJsonArray::fromStringList(record.restoredVolumes)},
            {QStringLiteral("volumeComplaint"), record.volumeComplaint},
            {QStringLiteral("keptAudio"), record.keptAudio},
            {QStringLiteral("screenshots"), QJsonArray::fromStringList(record.screenshots)},
            {QStringLiteral("deviceVolume"), volumeOf(record.deviceVolume)},
            {QStringLiteral("microphoneVolume"),
             record.microphone.isEmpty() ? QJsonValue() : QJsonValue(volumeOf(record.microphoneVolume))},
            {QStringLiteral("warnings"), warningsIn(record, lookUp)},
            {QStringLiteral("answeredBy"), answererOf(record)},
            {QStringLiteral("machine"), machineOf(record.machine)}};
}

// What is a sentence already needs no other sign behind it.
QString joinedWords(const QStringList &words)
{
    QString text;
    for (const QString &part : words) {
        if (!text.isEmpty())
            text += text.endsWith(u'.') ? QStringLiteral(" ") : QStringLiteral("; ");
        text += part;
    }
    return text;
}

// Three forms of one answer: for programs, for whoever reads the logs of many machines, and for the person at this one.
void addReason(QJsonObject &body, const RunRecord &record, const TextLookup &lookUp)
{
    QStringList keys;
    QStringList words;
    QStringList translations;
    const QList<RunReason> reasons = reasonsOf(record);
    for (const RunReason &reason : reasons) {
        keys.append(reason.key);
        words.append(wordsOf(reason));
        translations.append(translatedReason(reason, lookUp));
    }
    body.insert(QStringLiteral("reasonKeys"), QJsonArray::fromStringList(keys));
    body.insert(QStringLiteral("reason"), joinedWords(words));
    body.insert(QStringLiteral("reasonTranslated"), translations.join(u' '));
}

QByteArray indented(const QJsonObject &object) { return QJsonDocument(object).toJson(QJsonDocument::Indented); }

bool refuse(QString *error, const QString &file, const QString &why)
{
    if (error != nullptr)
        *error = QStringLiteral("the report '%1' cannot be written: %2").arg(file, why);
    return false;
}

} // namespace

std::optional<int> playedDigit(const RunRecord &record, const HeardDigit &digit)
{
    // The last one, when the test passed.
    const bool isAccepted = record.moduleCode == ostra::result::passed && digit.sequence == record.digits.last().sequence;
    return isAccepted ? digit.typed : std::nullopt;
}

QString resultName(std::uint32_t code)
{
    switch (code) {
    case ostra::result::passed:
        return QStringLiteral("passed");
    case ostra::result::failed:
        return QStringLiteral("failed");
    case ostra::result::cannotBePerformed:
        return QStringLiteral("cannot be performed");
    case ostra::result::notCompleted:
        return QStringLiteral("not completed");
    case ostra::result::invalidCall:
        return QStringLiteral("invalid call");
    default:
        return QStringLiteral("unknown");
    }
}

// The toolkit sorts an object's members, and the limits belong below what they limit: both objects become one.
QByteArray runReport(const RunRecord &record, const TextLookup &lookUp)
{
    QJsonObject members = bodyOf(record, lookUp);
    addReason(members, record, lookUp);
    const QByteArray body = indented(members);
    const QByteArray limits = indented({{QStringLiteral("limits"), QJsonArray::fromStringList(runLimits(record))}});
    return body.left(body.lastIndexOf("\n}")) + ',' + limits.mid(limits.indexOf('\n'));
}

bool writeReportFile(const QByteArray &report, const QString &file, QString *error)
{
    QSaveFile output(file);
    if (!output.open(QIODevice::WriteOnly))
        return refuse(error, file, output.errorString());
    if (output.write(report) != report.size() || !output.commit())
        return refuse(error, file, output.errorString());
    return true;
}

bool writeRunReport(const RunRecord &record, const QString &file, QString *error, const TextLookup &lookUp)
{
    const QByteArray json = runReport(record, lookUp);
    const std::optional<ReportFormat> format = reportFormatOf(file);
    if (!format)
        return refuse(error, file, reportSuffixes());
    const QByteArray report =
        *format == ReportFormat::json ? json : convertReport(QJsonDocument::fromJson(json).object(), *format);
    return writeReportFile(report, file, error);
}

} // namespace host
