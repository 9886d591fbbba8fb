// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>

class QXmlStreamWriter;

namespace host {

/// Plot of the playback that the microphone test's run heard. Nothing without it.
void writeRecordingPlot(QXmlStreamWriter &xml, const QJsonObject &report);

/// Plots of a report's digits: scores and levels of all, wave and spectrum of each that was measured. Nothing without digits.
void writeDigitPlots(QXmlStreamWriter &xml, const QJsonObject &report);

} // namespace host
