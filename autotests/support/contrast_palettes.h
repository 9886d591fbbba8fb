// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "utils/system_colors.h"

#include <QColor>
#include <QList>

#include <array>
#include <cstdint>

/// The contrast themes of Windows 11 as data, for desktops that are not one.
namespace contrast_palettes {

struct Palette {
    const char *name;
    // As 0xRRGGBB. Microsoft's page "Contrast themes" (learn.microsoft.com, apps/design/accessibility/high-contrast-themes)
    // names these eight and shows them as swatches only; the numbers were taken from public copies of the theme files' values.
    std::uint32_t window;
    std::uint32_t windowText;
    std::uint32_t buttonFace;
    std::uint32_t buttonText;
    std::uint32_t highlight;
    std::uint32_t highlightText;
    std::uint32_t hotLight;
    std::uint32_t grayText;
    // No part of the page: Background, InfoText, WindowFrame and GradientActiveTitle of the section [Control Panel\Colors] in
    // public copies of hcblack.theme (Aquatic, one that its user had edited elsewhere) and hcwhite.theme (Desert). The files of
    // the other two were not to be had: they take those of the other dark theme. Background is the window's colour, as
    // hcwhite.theme has it.
    std::uint32_t background;
    std::uint32_t infoText;
    std::uint32_t windowFrame;
    std::uint32_t gradientActiveCaption;
};

// clang-format off
inline constexpr std::array<Palette, 4> themes = {{
    // name      window    w. text   face      b. text   highlight h. text   hot light grey      backgr.   info text frame     caption
    {"aquatic",   0x202020, 0xFFFFFF, 0x202020, 0xFFFFFF, 0x8EE3F0, 0x263B50, 0x75E9FC, 0xA6A6A6, 0x202020, 0xFFFFFF, 0xFFFFFF, 0x800080},
    {"desert",    0xFFFAEF, 0x3D3D3D, 0xFFFAEF, 0x202020, 0x903909, 0xFFF5E3, 0x1C5E75, 0x676767, 0xFFFAEF, 0x000000, 0x000000, 0x000000},
    {"dusk",      0x2D3236, 0xFFFFFF, 0x2D3236, 0xB6F6F0, 0xA1BFDE, 0x212D3B, 0x70EBDE, 0xA6A6A6, 0x2D3236, 0xFFFFFF, 0xFFFFFF, 0x800080},
    {"night-sky", 0x000000, 0xFFFFFF, 0x000000, 0xFFEE32, 0xD6B4FD, 0x2B2B2B, 0x8080FF, 0xA6A6A6, 0x000000, 0xFFFFFF, 0xFFFFFF, 0x800080},
}};
// clang-format on

/// The colour of a Windows system colour index, as QColor. What the palette does not hold is the window's or its text's.
inline QColor color(const Palette &palette, int index)
{
    using namespace ostra::utils;
    const auto rgb = [&palette, index]() -> std::uint32_t {
        switch (index) {
        case system_color::background:
            return palette.background;
        case system_color::windowFrame:
            return palette.windowFrame;
        case 7: // menu text
        case 9: // caption text
        case system_color::windowText:
            return palette.windowText;
        case system_color::highlight:
            return palette.highlight;
        case system_color::highlightText:
            return palette.highlightText;
        case system_color::buttonFace:
            return palette.buttonFace;
        case system_color::grayText:
            return palette.grayText;
        case system_color::buttonText:
            return palette.buttonText;
        case system_color::infoText:
            return palette.infoText;
        case system_color::hotLight:
            return palette.hotLight;
        case system_color::gradientActiveCaption:
            return palette.gradientActiveCaption;
        default:
            return palette.window;
        }
    };
    return QColor::fromRgb(rgb());
}

/// The list of 30, in the order of `systemColorIndices`.
inline QList<QColor> systemColors(const Palette &palette)
{
    QList<QColor> colors;
    for (const int index : ostra::utils::systemColorIndices)
        colors.append(color(palette, index));
    return colors;
}

} // namespace contrast_palettes
