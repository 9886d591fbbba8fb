// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>

#include <optional>

namespace host {

/// What was measured on one digit of the capture; docs/measurements.md defines each of them.
struct DigitMeasurement {
    std::optional<double> snrDb;         ///< signal to residual; nothing when the clip was not found whole
    std::optional<double> residualDbfs;  ///< RMS level of what is left after the scaled clip is taken away
    std::optional<double> clockErrorPpm; ///< above 0: the device plays too fast; nothing when not measurable
    double peakDbfs = 0.0;
    QList<double> channelDbfs; ///< RMS level of left and right
    qint64 clippedFrameCount = 0;
    QList<double> lowest;         ///< of each `envelopeStepMs`, -1 to 1 of full scale
    QList<double> highest;        ///< as many
    QList<double> bandLevelsDbfs; ///< of the third-octave bands from `lowestBandHz` on
};

inline constexpr int envelopeStepMs = 5;
inline constexpr double lowestBandHz = 100.0; ///< nominal centre; IEC 61260-1 bands, ten to a decade

} // namespace host
