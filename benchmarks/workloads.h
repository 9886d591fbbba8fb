// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/measure/digit_clips.h"

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QString>

#include <cstddef>

/// What the benchmarks are fed with; the same bytes at every run.
namespace bench {

/// A configuration as a product ships it: 100 lines, ten sections, with comments and blank lines.
QByteArray productConfiguration();

/// `lineCount` lines: a section of 99 keys, again and again.
QByteArray longConfiguration(std::size_t lineCount);

/// One key with a value that fills `byteCount` bytes.
QByteArray longLineConfiguration(std::size_t byteCount);

/// The stylesheet that the host serves.
QString productSheet();

/// The product's sheet with other names for its named widgets, as often as it takes to reach `length` characters.
QString longSheet(qsizetype length);

/// 30 system colours of a dark contrast theme.
QList<QColor> contrastColors();

/// The English digits as the product ships them. Ends the program when they are not there.
measure::DigitClips digitClips();

/// What the operator looks at for each decision: 1.6 s at 48 kHz with a digit in the middle and faint noise around.
measure::MonoSound digitCapture(const measure::DigitClips &clips);

} // namespace bench
