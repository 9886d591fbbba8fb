// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QJsonObject>

namespace host {

/// The report as JUnit XML: one suite of one case. Result 0 is a success, 1 a failure, 3 skipped, anything else an error.
QByteArray junitReport(const QJsonObject &report);

} // namespace host
