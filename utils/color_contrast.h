// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

namespace ostra::utils {

/// Relative luminance of an sRGB colour, 0 (black) to 1 (white): WCAG 2.1, "relative luminance".
inline double relativeLuminance(const QColor &color)
{
    const auto linear = [](float part) {
        const auto value = static_cast<double>(part);
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// Contrast ratio of two colours, 1 (equal) to 21 (black and white): WCAG 2.1, "contrast ratio".
inline double contrastRatio(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({relativeLuminance(one), relativeLuminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace ostra::utils
