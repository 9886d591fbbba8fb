// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

/// Figures that need a sound server with a device "Speakers". Each measures and prints its rows.
namespace bench {

/// From the start of a digit to its first sound. `arguments`: a file that a recorder of the device's monitor is filling
/// with 16-bit samples of one channel at 48 kHz, since before the figure began.
void firstDigitFigure(const QStringList &arguments);
/// A whole run with right answers against its designed waits, and the longest block of the GUI thread meanwhile. `arguments`:
/// the number of pairs, where it is not to be the usual one.
void playbackRunFigures(const QStringList &arguments);
/// From the sound library's notice of a lost device to the worker's report. `arguments`: the sound server's tool, then for
/// each device "Speakers 01", "Speakers 02", … the number of the server's module that makes it.
void deviceLossFigure(const QStringList &arguments);

} // namespace bench
