// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/// One rule of a stylesheet: its selectors as written and its declarations by property.
struct SheetRule {
    QStringList selectors;
    QMap<QString, QString> declarations;
};

/// The rules of a sheet without comments, in its order. `isWellFormed` becomes false at a rule or declaration that does not
/// read as one.
QList<SheetRule> parseSheet(const QString &sheet, bool &isWellFormed);

/// Value that the sheet gives to `property` for exactly `selector`: that of the last rule that names it, empty for none.
QString sheetValue(const QList<SheetRule> &rules, const QString &selector, const QString &property);

/// The colour in a value such as "#1B2733" or "2px solid #1B2733"; invalid when there is none.
QColor sheetColor(const QString &value);

/// Ratio from 1 to 21 of the relative luminances of two opaque colours (WCAG 2, "contrast ratio").
double contrastRatio(const QColor &a, const QColor &b);
