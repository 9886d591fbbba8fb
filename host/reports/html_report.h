// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QJsonObject>

namespace host {

/// The report as one HTML file that needs no other and no network; also well-formed XML. Its own words are English; the texts
/// of the module are in the language of the run, and marked so.
QByteArray htmlReport(const QJsonObject &report);

} // namespace host
