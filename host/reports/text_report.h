// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace host {

/// The report for a console, each line ended by "\n".
QByteArray textReport(const QJsonObject &report);

/// The digits of a report as a table of plain text; empty without digits.
QString digitTableText(const QJsonObject &report);

} // namespace host
