// SPDX-License-Identifier: Apache-2.0
#include "host/cli/shown_text.h"

#include <QChar>
#include <QList>

#include <algorithm>
#include <array>

namespace host {

namespace {

constexpr char32_t zeroWidthNonJoiner = 0x200C;
constexpr char32_t zeroWidthJoiner = 0x200D;

struct Range {
    char32_t first;
    char32_t last;
};

constexpr std::array<Range, 15> wideRanges{{{0x1100, 0x115F},
                                            {0x2E80, 0x303E},
                                            {0x3041, 0x33FF},
                                            {0x3400, 0x4DBF},
                                            {0x4E00, 0x9FFF},
                                            {0xA000, 0xA4CF},
                                            {0xA960, 0xA97C},
                                            {0xAC00, 0xD7A3},
                                            {0xF900, 0xFAFF},
                                            {0xFE30, 0xFE6F},
                                            {0xFF00, 0xFF60},
                                            {0xFFE0, 0xFFE6},
                                            {0x1F300, 0x1F64F},
                                            {0x1F680, 0x1F9FF},
                                            {0x20000, 0x3FFFD}}};

bool isJoiner(char32_t point) { return point == zeroWidthNonJoiner || point == zeroWidthJoiner; }

bool isUnsafe(char32_t point)
{
    switch (QChar::category(point)) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    case QChar::Other_Format:
        return !isJoiner(point);
    default:
        return false;
    }
}

QString escaped(char32_t point)
{
    const auto number = static_cast<uint>(point);
    return point < 0x80 ? QStringLiteral("\\x%1").arg(number, 2, 16, QLatin1Char('0'))
                        : QStringLiteral("\\u{%1}").arg(number, 4, 16, QLatin1Char('0'));
}

int widthOf(char32_t point)
{
    const QChar::Category category = QChar::category(point);
    if (category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing || category == QChar::Other_Format)
        return 0;
    const bool isWide = std::any_of(wideRanges.begin(), wideRanges.end(),
                                    [point](const Range &range) { return point >= range.first && point <= range.last; });
    return isWide ? 2 : 1;
}

} // namespace

QString shownText(const QString &text)
{
    QString shown;
    const QList<uint> points = text.toUcs4();
    for (const uint point : points) {
        if (isUnsafe(point))
            shown += escaped(point);
        else
            shown += QString::fromUcs4(std::array<char32_t, 1>{point}.data(), 1);
    }
    return shown;
}

int displayWidth(const QString &text)
{
    int columns = 0;
    const QList<uint> points = text.toUcs4();
    for (const uint point : points)
        columns += widthOf(point);
    return columns;
}

} // namespace host
