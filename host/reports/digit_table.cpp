// SPDX-License-Identifier: Apache-2.0
#include "host/reports/digit_table.h"

#include <QStringList>

#include <algorithm>

namespace host {

namespace {

QString digitText(const std::optional<int> &digit) { return digit ? QString::number(*digit) : QStringLiteral("-"); }

QString millisecondText(double value) { return value >= 0 ? QString::number(value, 'f', 0) : QStringLiteral("-"); }

QStringList header()
{
    return {QStringLiteral("Sequence"), QStringLiteral("Digit"),  QStringLiteral("Played at ms"), QStringLiteral("Heard"),
            QStringLiteral("Typed"),    QStringLiteral("Score"),  QStringLiteral("Margin"),       QStringLiteral("Latency ms"),
            QStringLiteral("dBFS"),     QStringLiteral("Clipped")};
}

QStringList cellsOf(const HeardDigit &digit)
{
    return {QString::number(digit.sequence),
            QString::number(digit.position),
            millisecondText(static_cast<double>(digit.playedAtMs)),
            digitText(digit.heard),
            digitText(digit.typed),
            QString::number(digit.score, 'f', 2),
            QString::number(digit.margin, 'f', 2),
            millisecondText(digit.latencyMs),
            QString::number(digit.levelDbfs, 'f', 1),
            digit.clipped ? QStringLiteral("yes") : QStringLiteral("no")};
}

QString lineOf(const QStringList &cells, const QList<qsizetype> &widths)
{
    QStringList padded;
    for (qsizetype column = 0; column < cells.size(); ++column)
        padded.append(cells.at(column).rightJustified(widths.at(column)));
    return padded.join(QStringLiteral("  ")) + u'\n';
}

} // namespace

QString digitTable(const RunRecord &record)
{
    if (record.digits.isEmpty())
        return {};
    QList<QStringList> rows{header()};
    for (const HeardDigit &digit : record.digits)
        rows.append(cellsOf(digit));
    QList<qsizetype> widths(rows.first().size(), 0);
    for (const QStringList &row : rows) {
        for (qsizetype column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row.at(column).size());
    }
    QString table;
    for (const QStringList &row : rows)
        table += lineOf(row, widths);
    return table;
}

} // namespace host
