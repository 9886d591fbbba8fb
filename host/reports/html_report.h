// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QJsonObject>

namespace host {

/// The report as one HTML file that needs no other and no network; also well-formed XML. All of it is English; what
/// stands beside it in the language of the run is marked so.
QByteArray htmlReport(const QJsonObject &report);

} // namespace host
