// SPDX-License-Identifier: Apache-2.0
#include "host/reports/run_report.h"

#include "contract/result_codes.h"
#include "host/core/verdict.h"
#include "host/reports/run_limits.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <cmath>

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

QJsonArray progressOf(const RunRecord &record)
{
    QJsonArray steps;
    for (const RunProgress &step : record.progress)
        steps.append(
            QJsonObject{{QStringLiteral("percent"), static_cast<qint64>(step.percent)}, {QStringLiteral("text"), step.text}});
    return steps;
}

QJsonArray messagesOf(const RunRecord &record)
{
    QJsonArray messages;
    for (const RunMessage &message : record.messages)
        messages.append(
            QJsonObject{{QStringLiteral("level"), static_cast<qint64>(message.level)}, {QStringLiteral("text"), message.text}});
    return messages;
}

QJsonObject digitRow(const HeardDigit &digit)
{
    return {{QStringLiteral("sequence"), digit.sequence},
            {QStringLiteral("position"), digit.position},
            {QStringLiteral("playedAtMs"), knownOrNull(static_cast<double>(digit.playedAtMs))},
            {QStringLiteral("heard"), digitOrNull(digit.heard)},
            {QStringLiteral("typed"), digitOrNull(digit.typed)},
            {QStringLiteral("score"), rounded(digit.score, 10'000)},
            {QStringLiteral("margin"), rounded(digit.margin, 10'000)},
            {QStringLiteral("latencyMs"), knownOrNull(digit.latencyMs)},
            {QStringLiteral("levelDbfs"), rounded(digit.levelDbfs, 10)},
            {QStringLiteral("clipped"), digit.clipped}};
}

QJsonArray digitsOf(const RunRecord &record)
{
    QJsonArray rows;
    for (const HeardDigit &digit : record.digits)
        rows.append(digitRow(digit));
    return rows;
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
        {QStringLiteral("answer"),
         heard->answer ? QJsonValue(*heard->answer ? QStringLiteral("yes") : QStringLiteral("no")) : QJsonValue()}};
}

QJsonObject bodyOf(const RunRecord &record)
{
    return {{QStringLiteral("formatVersion"), reportFormatVersion},
            {QStringLiteral("test"),
             QJsonObject{{QStringLiteral("letter"), record.testLetter}, {QStringLiteral("nameKey"), record.testNameKey}}},
            {QStringLiteral("device"), deviceOf(record.device)},
            {QStringLiteral("language"), record.language},
            {QStringLiteral("startedUtc"), momentOf(record.startedUtc)},
            {QStringLiteral("endedUtc"), momentOf(record.endedUtc)},
            {QStringLiteral("verdict"), QJsonObject{{QStringLiteral("code"), static_cast<qint64>(codeOf(verdictOf(record)))},
                                                    {QStringLiteral("name"), resultName(codeOf(verdictOf(record)))}}},
            {QStringLiteral("moduleCode"),
             record.wasModuleCalled ? QJsonValue(static_cast<qint64>(record.moduleCode)) : QJsonValue()},
            {QStringLiteral("stopped"), record.wasStopped},
            {QStringLiteral("reason"), record.reason},
            {QStringLiteral("progress"), progressOf(record)},
            {QStringLiteral("messages"), messagesOf(record)},
            {QStringLiteral("unattended"), record.isUnattended},
            {QStringLiteral("listenedTo"), record.listenedTo},
            {QStringLiteral("digits"), digitsOf(record)},
            {QStringLiteral("recording"), recordingOf(record.recording)},
            {QStringLiteral("restoredVolumes"), QJsonArray::fromStringList(record.restoredVolumes)},
            {QStringLiteral("volumeComplaint"), record.volumeComplaint},
            {QStringLiteral("screenshots"), QJsonArray::fromStringList(record.screenshots)}};
}

QByteArray indented(const QJsonObject &object) { return QJsonDocument(object).toJson(QJsonDocument::Indented); }

bool refuse(QString *error, const QString &file, const QString &why)
{
    if (error != nullptr)
        *error = QStringLiteral("the report '%1' cannot be written: %2").arg(file, why);
    return false;
}

} // namespace

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
QByteArray runReport(const RunRecord &record)
{
    const QByteArray body = indented(bodyOf(record));
    const QByteArray limits = indented({{QStringLiteral("limits"), QJsonArray::fromStringList(runLimits(record))}});
    return body.left(body.lastIndexOf("\n}")) + ',' + limits.mid(limits.indexOf('\n'));
}

bool writeRunReport(const RunRecord &record, const QString &file, QString *error)
{
    const QByteArray report = runReport(record);
    QSaveFile output(file);
    if (!output.open(QIODevice::WriteOnly))
        return refuse(error, file, output.errorString());
    if (output.write(report) != report.size() || !output.commit())
        return refuse(error, file, output.errorString());
    return true;
}

} // namespace host
