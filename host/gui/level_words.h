// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"

#include <QList>
#include <QString>

namespace host {

enum class Loudness { silent, quiet, good, tooLoud };

/// Silent below -50 dBFS RMS, quiet below -35, too loud where a sample reaches the end of the scale.
Loudness loudnessOf(double rmsDbfs, double peakDbfs);

/// Both levels and what they mean, in the language in force.
QString levelWords(double rmsDbfs, double peakDbfs);

/// What was captured of each digit, one behind the other, as lowest and highest sample in turn, fifty pairs a second; empty
/// where nothing was measured.
QList<double> waveOf(const QList<HeardDigit> &digits);

enum class WaveOf { recording, digits };

/// What a waveform of fifty pairs a second shows, its length and its highest sample; empty for none.
QString waveWords(const QList<double> &wave, WaveOf what);

} // namespace host
