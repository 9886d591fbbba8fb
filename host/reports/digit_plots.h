// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>

class QXmlStreamWriter;

namespace host {

/// Plots of a report's digits: scores and levels of all, wave and spectrum of each that was measured. Nothing without digits.
void writeDigitPlots(QXmlStreamWriter &xml, const QJsonObject &report);

} // namespace host
