// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

/// Figures that need a sound server, most of them with a device "Speakers". Each measures and prints its rows.
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

/// What a process spends on each device when it lists them for the first time, with its sound library started: milliseconds for
/// opening it, until its closing begins, for closing it and for everything else, and the number of devices. `arguments`:
/// "module", or anything else for the bare sound library.
void refreshParts(const QStringList &arguments);

/// The resident memory, in kilobytes, that showing the playback test's form 100 times in dialogs of bare Qt adds, with Qt's
/// cache of pictures emptied. `arguments`: none.
void memoryOfDialogs(const QStringList &arguments);

} // namespace bench
