// SPDX-License-Identifier: Apache-2.0
#include "utils/screen_sources.h"

#include "utils/color_contrast.h"
#include "utils/desktop_appearance_linux.h"

#include <QGuiApplication>
#include <QPalette>

namespace ostra::utils {

namespace {

constexpr double highContrastRatio = 20.0;

bool isHighContrast(const QPalette &palette)
{
    const auto stands = [&palette](QPalette::ColorRole text, QPalette::ColorRole background) {
        return contrastRatio(palette.color(text), palette.color(background)) >= highContrastRatio;
    };
    return stands(QPalette::WindowText, QPalette::Window) && stands(QPalette::ButtonText, QPalette::Button);
}

} // namespace

bool desktopHighContrast()
{
    if (const auto asked = desktopAppearance().highContrast)
        return *asked;
    return isHighContrast(QGuiApplication::palette());
}

} // namespace ostra::utils
