// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/style/sheet_rules.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

double linear(double channel) { return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4); }

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

bool parseDeclarations(const QString &body, SheetRule &rule)
{
    const QStringList lines = body.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        if (line.trimmed().isEmpty())
            continue;
        const qsizetype colon = line.indexOf(QLatin1Char(':'));
        if (colon <= 0)
            return false;
        rule.declarations.insert(line.left(colon).trimmed(), line.mid(colon + 1).trimmed());
    }
    return !rule.declarations.isEmpty();
}

} // namespace

QList<SheetRule> parseSheet(const QString &sheet, bool &isWellFormed)
{
    QList<SheetRule> rules;
    const QStringList parts = sheet.split(QLatin1Char('}'));
    isWellFormed = parts.last().trimmed().isEmpty();
    for (const QString &part : parts.first(parts.size() - 1)) {
        const QStringList halves = part.split(QLatin1Char('{'));
        SheetRule rule;
        isWellFormed = isWellFormed && halves.size() == 2 && parseDeclarations(halves.last(), rule);
        const QStringList selectors = halves.first().split(QLatin1Char(','));
        for (const QString &selector : selectors)
            rule.selectors.append(selector.trimmed());
        rules.append(rule);
    }
    return rules;
}

QString sheetValue(const QList<SheetRule> &rules, const QString &selector, const QString &property)
{
    QString value;
    for (const SheetRule &rule : rules) {
        if (rule.selectors.contains(selector) && rule.declarations.contains(property))
            value = rule.declarations.value(property);
    }
    return value;
}

QColor sheetColor(const QString &value)
{
    static const QRegularExpression hexadecimal(QStringLiteral("#[0-9A-Fa-f]{6}\\b"));
    const QRegularExpressionMatch match = hexadecimal.match(value);
    return match.hasMatch() ? QColor(match.captured()) : QColor();
}

double contrastRatio(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}
