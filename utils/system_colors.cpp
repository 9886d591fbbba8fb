// SPDX-License-Identifier: Apache-2.0
#include "utils/system_colors.h"

#include "utils/screen_sources.h"

namespace ostra::utils {

QColor colorOfReference(std::uint32_t reference)
{
    const auto byte = [reference](int shift) { return static_cast<int>((reference >> shift) & 0xFFU); };
    return QColor(byte(0), byte(8), byte(16));
}

std::uint32_t referenceOfColor(const QColor &color)
{
    const auto byte = [](int value, int shift) { return static_cast<std::uint32_t>(value) << shift; };
    return byte(color.red(), 0) | byte(color.green(), 8) | byte(color.blue(), 16);
}

QList<QColor> systemColorList()
{
    QList<QColor> colors;
    colors.reserve(systemColorIndices.size());
    for (const int index : systemColorIndices)
        colors.append(colorOfReference(screenSources().systemColor(index)));
    return colors;
}

} // namespace ostra::utils
