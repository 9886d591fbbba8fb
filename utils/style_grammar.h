// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// The part of Qt's stylesheet grammar that is safe to write. Texts come without comments, see `StyleRules`.
namespace ostra::utils {

/// A list of selectors: "QDialog QLabel#name::sub:!state, .QFrame[flat=\"true\"] > *".
bool isStyleSelector(const QString &text);

/// A property's name.
bool isStyleProperty(const QString &text);

/// A property's value: numbers, names, quoted texts, url(), functions such as rgb() and gradients; "!important" at its end.
bool isStyleValue(const QString &text);

} // namespace ostra::utils
