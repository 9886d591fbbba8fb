// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"

#include <QByteArray>
#include <QString>

namespace host {

constexpr int reportFormatVersion = 1;

/// The report of a run as an indented JSON document in UTF-8. Moments are UTC in ISO 8601, texts of the module are keys, what
/// is not known is null; "limits" comes last.
QByteArray runReport(const RunRecord &record);

/// Writes it so that the file is either the whole report or what it was before. False, with one line in `error`, when it
/// cannot.
bool writeRunReport(const RunRecord &record, const QString &file, QString *error);

/// Name of a result code, such as "passed".
QString resultName(std::uint32_t code);

} // namespace host
