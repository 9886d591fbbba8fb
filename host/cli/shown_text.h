// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace host {

/// `text` made fit for a terminal: control characters, direction and other invisible formatting characters and line
/// separators become "\xNN" or "\u{NNNN}" (lower-case hexadecimal), so that a device name can neither break the layout nor
/// steer the terminal. The two joiners that scripts and symbols need (U+200C, U+200D) stay; so does the backslash, which
/// makes the result a text to read and not to convert back.
QString shownText(const QString &text);

/// Terminal columns that `text` fills: 2 for wide East Asian characters and pictographs, 0 for combining marks and joiners,
/// else 1 (Unicode Standard Annex 11, wide and fullwidth, by block).
int displayWidth(const QString &text);

} // namespace host
