// SPDX-License-Identifier: Apache-2.0
#include "host/cli/text_table.h"

#include "host/cli/shown_text.h"

#include <algorithm>

namespace host {

namespace {

constexpr int columnGap = 2;

QStringList shownCells(const QStringList &cells)
{
    QStringList shown;
    for (const QString &cell : cells)
        shown.append(cell.isEmpty() ? QStringLiteral("-") : shownText(cell));
    return shown;
}

QList<int> columnWidths(const QList<QStringList> &lines)
{
    QList<int> widths(lines.front().size(), 0);
    for (const QStringList &cells : lines) {
        for (qsizetype column = 0; column < widths.size(); ++column)
            widths[column] = std::max(widths[column], displayWidth(cells[column]));
    }
    return widths;
}

QString paddedLine(const QStringList &cells, const QList<int> &widths)
{
    QString line;
    for (qsizetype column = 0; column < cells.size(); ++column) {
        line += cells[column];
        if (column + 1 < cells.size())
            line += QString(widths[column] - displayWidth(cells[column]) + columnGap, u' ');
    }
    return line;
}

} // namespace

QString textTable(const QStringList &header, const QList<QStringList> &rows, TableStyle style)
{
    QList<QStringList> lines{header};
    for (const QStringList &row : rows)
        lines.append(shownCells(row));
    const QList<int> widths = columnWidths(lines);
    const bool isBold = style == TableStyle::boldHeader;
    QString table = (isBold ? QStringLiteral("\x1b[1m%1\x1b[0m\n") : QStringLiteral("%1\n")).arg(paddedLine(header, widths));
    for (qsizetype line = 1; line < lines.size(); ++line)
        table += paddedLine(lines[line], widths) + u'\n';
    return table;
}

} // namespace host
