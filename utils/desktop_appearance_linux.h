// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>

#include <optional>

namespace ostra::utils {

/// What the user asked of the desktop's look; absent where the desktop does not tell.
struct DesktopAppearance {
    std::optional<bool> highContrast; ///< "contrast": 1 is more contrast
    std::optional<bool> dark;         ///< "color-scheme": 1 dark, 2 light
    std::optional<QColor> accent;     ///< "accent-color": three parts from 0 to 1
};

/// Asks the desktop portal on the session's message bus for the group "org.freedesktop.appearance" of its settings
/// (documented with the interface org.freedesktop.portal.Settings). Waits at most 200 ms for the portal. The answer is
/// kept for 50 ms, less than a dialog waits after a theme change, and a failure for 5 s, so that a desktop without a portal
/// holds nobody up. Without the address of a bus nothing is asked. GUI thread.
DesktopAppearance desktopAppearance();

} // namespace ostra::utils
