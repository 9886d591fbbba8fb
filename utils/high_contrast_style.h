// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QList>
#include <QString>

#include <functional>

namespace ostra::utils {

/// Gives the value of an "image" or "icon" property in another colour (QColor::name); may return it unchanged.
using IconRecolouring = std::function<QString(const QString &propertyValue, const QString &color)>;

/// `sheet` in the system's colours: the same rules with the same sizes, in which text and fill are always one of the pairs that
/// contrast themes are made for, and rules of its own for the module's dialogs (docs/high-contrast.md lists both).
///
/// `systemColors` is the list of 30 (`systemColorIndices`). Whatever `sheet` holds, Qt reads the result; takes time linear in
/// its length. Touches nothing outside, but calls `recolour` for each icon it meets (none when empty).
QString highContrastStyleSheet(const QString &sheet, const QList<QColor> &systemColors, const IconRecolouring &recolour);

} // namespace ostra::utils
