// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>
#include <variant>

namespace host {

/// junit is XML as build servers read it; html one file that needs no other; text is for a console.
enum class ReportFormat { json, junit, html, text };

/// By the file's suffix: ".json", ".xml", ".html", ".htm" or ".txt", in any case. Nothing for another.
std::optional<ReportFormat> reportFormatOf(const QString &file);
/// The suffixes, as one line of a complaint.
QString reportSuffixes();

/// Why a report cannot be read, in one line.
struct ReportError {
    QString message;
};

/// Reads a report that `runReport` wrote, also one of somebody else's making: it must keep to the published schema and must not
/// contradict itself, see `faultOf`; what an older program did not write is left out of a conversion.
std::variant<QJsonObject, ReportError> readReport(const QByteArray &bytes);

/// The report in another format, UTF-8. Whatever text it holds is data: nothing of it becomes markup.
QByteArray convertReport(const QJsonObject &report, ReportFormat format);

} // namespace host
