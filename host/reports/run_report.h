// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

namespace host {

/// Version 1 had no "reasonKeys", "reasonTranslated" and "microphone", and called "volumesPutBackByGuardian" otherwise.
constexpr int reportFormatVersion = 2;

/// Text for a key or a composite of keys, in the language of the run.
using TextLookup = std::function<QString(const QString &)>;

/// The report of a run as an indented JSON document in UTF-8, as docs/report.schema.json describes it. Moments are UTC in
/// ISO 8601, what is not known is null; "limits" comes last. Texts of the module come as keys and, by `lookUp`, translated.
QByteArray runReport(const RunRecord &record, const TextLookup &lookUp = {});

/// Writes it in the format that the file's suffix names, so that the file is either the whole report or what it was before.
/// False, with one line in `error`, when it cannot, or for another suffix.
bool writeRunReport(const RunRecord &record, const QString &file, QString *error, const TextLookup &lookUp = {});

/// Writes a finished report in the same way.
bool writeReportFile(const QByteArray &report, const QString &file, QString *error);

/// The module tells nobody what it draws. A sequence that it accepted was what was typed; nothing for any other.
std::optional<int> playedDigit(const RunRecord &record, const HeardDigit &digit);

/// Name of a result code, such as "passed".
QString resultName(std::uint32_t code);

} // namespace host
