// SPDX-License-Identifier: Apache-2.0
#include "host/reports/report_formats.h"

#include "host/reports/html_report.h"
#include "host/reports/junit_report.h"
#include "host/reports/report_check.h"
#include "host/reports/run_report.h"
#include "host/reports/text_report.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace host {

namespace {

// The first version told a failure's reason by its messages alone.
void explainByMessages(QJsonObject &report)
{
    QJsonArray keys;
    QStringList words;
    for (const QJsonValue message : report.value(QLatin1String("messages")).toArray()) {
        keys.append(message[QLatin1String("text")]);
        words.append(message[QLatin1String("text")].toString());
    }
    report.insert(QLatin1String("reasonKeys"), keys);
    if (report.value(QLatin1String("reason")).toString().isEmpty())
        report.insert(QLatin1String("reason"), words.join(QStringLiteral("; ")));
}

// A report of an older program is read as this one would have written it.
QJsonObject upgraded(QJsonObject report)
{
    if (report.contains(QLatin1String("restoredVolumes")))
        report.insert(QLatin1String("volumesPutBackByGuardian"), report.take(QLatin1String("restoredVolumes")));
    report.insert(QLatin1String("microphone"),
                  report.value(QLatin1String("recording"))[QLatin1String("microphone")].toString());
    report.insert(QLatin1String("reasonKeys"), QJsonArray());
    if (report.value(QLatin1String("verdict"))[QLatin1String("code")].toInt() != 0)
        explainByMessages(report);
    report.insert(QLatin1String("reasonTranslated"), report.value(QLatin1String("reason")).toString());
    report.insert(QLatin1String("formatVersion"), reportFormatVersion);
    return report;
}

std::variant<QJsonObject, ReportError> checked(QJsonObject report)
{
    const QString fault = faultOf(report);
    if (!fault.isEmpty())
        return ReportError{QStringLiteral("it is no valid report: ") + fault};
    return report;
}

} // namespace

std::optional<ReportFormat> reportFormatOf(const QString &file)
{
    const QString suffix = QFileInfo(file).suffix().toLower();
    if (suffix == QLatin1String("json"))
        return ReportFormat::json;
    if (suffix == QLatin1String("xml"))
        return ReportFormat::junit;
    if (suffix == QLatin1String("html") || suffix == QLatin1String("htm"))
        return ReportFormat::html;
    return suffix == QLatin1String("txt") ? std::optional(ReportFormat::text) : std::nullopt;
}

QString reportSuffixes() { return QStringLiteral("its name must end in .json, .xml, .html or .txt"); }

std::variant<QJsonObject, ReportError> readReport(const QByteArray &bytes)
{
    QJsonParseError parsing;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &parsing);
    if (parsing.error != QJsonParseError::NoError)
        return ReportError{
            QStringLiteral("it is no JSON: %1 at byte %2").arg(parsing.errorString(), QString::number(parsing.offset))};
    const int version = document.object().value(QLatin1String("formatVersion")).toInt();
    if (version == reportFormatVersion)
        return checked(document.object());
    if (version == 1)
        return checked(upgraded(document.object()));
    return ReportError{version > reportFormatVersion ? QStringLiteral("its format is newer than this program")
                                                     : QStringLiteral("it is no report of a test")};
}

QByteArray convertReport(const QJsonObject &report, ReportFormat format)
{
    switch (format) {
    case ReportFormat::junit:
        return junitReport(report);
    case ReportFormat::html:
        return htmlReport(report);
    case ReportFormat::text:
        return textReport(report);
    case ReportFormat::json:
        break;
    }
    return QJsonDocument(report).toJson(QJsonDocument::Indented);
}

} // namespace host
