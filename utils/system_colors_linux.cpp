// SPDX-License-Identifier: Apache-2.0
#include "utils/system_colors.h"

#include "utils/color_contrast.h"
#include "utils/desktop_appearance_linux.h"
#include "utils/screen_sources.h"

#include <QGuiApplication>
#include <QPalette>

namespace ostra::utils {

namespace {

struct Role {
    QPalette::ColorGroup group = QPalette::Active;
    QPalette::ColorRole role = QPalette::Window;
};

// In the order of the system's indices, 25 being none.
constexpr std::array<Role, 31> roles = {{
    {QPalette::Active, QPalette::Button},          // 0 scroll bar
    {QPalette::Active, QPalette::Window},          // 1 background
    {QPalette::Active, QPalette::Highlight},       // 2 active caption
    {QPalette::Inactive, QPalette::Window},        // 3 inactive caption
    {QPalette::Active, QPalette::Button},          // 4 menu
    {QPalette::Active, QPalette::Base},            // 5 window
    {QPalette::Active, QPalette::WindowText},      // 6 window frame
    {QPalette::Active, QPalette::ButtonText},      // 7 menu text
    {QPalette::Active, QPalette::Text},            // 8 window text
    {QPalette::Active, QPalette::HighlightedText}, // 9 caption text
    {QPalette::Active, QPalette::WindowText},      // 10 active border
    {QPalette::Inactive, QPalette::WindowText},    // 11 inactive border
    {QPalette::Active, QPalette::Window},          // 12 application workspace
    {QPalette::Active, QPalette::Highlight},       // 13 highlight
    {QPalette::Active, QPalette::HighlightedText}, // 14 highlighted text
    {QPalette::Active, QPalette::Button},          // 15 button face
    {QPalette::Active, QPalette::Dark},            // 16 button shadow
    {QPalette::Disabled, QPalette::Text},          // 17 grey text
    {QPalette::Active, QPalette::ButtonText},      // 18 button text
    {QPalette::Inactive, QPalette::WindowText},    // 19 inactive caption text
    {QPalette::Active, QPalette::Light},           // 20 button highlight
    {QPalette::Active, QPalette::Shadow},          // 21 dark shadow
    {QPalette::Active, QPalette::Midlight},        // 22 light
    {QPalette::Active, QPalette::ToolTipText},     // 23 tool tip text
    {QPalette::Active, QPalette::ToolTipBase},     // 24 tool tip
    {QPalette::Active, QPalette::Window},          // 25 none
    {QPalette::Active, QPalette::Link},            // 26 hot item
    {QPalette::Active, QPalette::Highlight},       // 27 end of the active caption
    {QPalette::Inactive, QPalette::Window},        // 28 end of the inactive caption
    {QPalette::Active, QPalette::Highlight},       // 29 menu highlight
    {QPalette::Active, QPalette::Button},          // 30 menu bar
}};

bool isText(QPalette::ColorRole role)
{
    return role == QPalette::Text || role == QPalette::WindowText || role == QPalette::ButtonText ||
           role == QPalette::ToolTipText;
}

QColor blackOrWhite(bool white) { return white ? QColor(Qt::white) : QColor(Qt::black); }

// Black, white and greys that stand out on the background (grey at 7.4:1 on black, 7.0:1 on white).
QColor schemeColor(Role role, bool dark)
{
    if (role.group == QPalette::Disabled)
        return dark ? QColor(0x99, 0x99, 0x99) : QColor(0x59, 0x59, 0x59);
    if (role.role == QPalette::Link)
        return dark ? QColor(0x8A, 0xB4, 0xF8) : QColor(0x00, 0x33, 0x99);
    const bool foreground = isText(role.role) || role.role == QPalette::Highlight;
    return blackOrWhite(foreground == dark);
}

QColor appearanceColor(Role role, const DesktopAppearance &appearance)
{
    if (appearance.accent && role.role == QPalette::Highlight)
        return *appearance.accent;
    if (appearance.accent && role.role == QPalette::HighlightedText)
        return blackOrWhite(contrastRatio(Qt::white, *appearance.accent) > contrastRatio(Qt::black, *appearance.accent));
    if (appearance.dark)
        return schemeColor(role, *appearance.dark);
    return QGuiApplication::palette().color(role.group, role.role);
}

} // namespace

std::uint32_t desktopColor(int index)
{
    if (index < 0 || static_cast<std::size_t>(index) >= roles.size())
        return 0; // as the other system answers
    return referenceOfColor(appearanceColor(roles[static_cast<std::size_t>(index)], desktopAppearance()));
}

} // namespace ostra::utils
