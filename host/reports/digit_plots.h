// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QString>

class QXmlStreamWriter;

namespace host {

/// Plot of the playback that the microphone test's run heard. Nothing without it.
void writeRecordingPlot(QXmlStreamWriter &xml, const QJsonObject &report);

/// Plots of a report's digits: scores and levels of all, wave and spectrum of each that was measured. Nothing without digits.
void writeDigitPlots(QXmlStreamWriter &xml, const QJsonObject &report);

/// Nominal centre of a third-octave band (IEC 61260-1) in Hz, such as "100" or "1.25k".
QString bandName(double hz);

} // namespace host
