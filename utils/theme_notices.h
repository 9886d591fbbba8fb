// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace ostra::utils::event_filters {

/// Begins to listen for theme changes that reach the application otherwise than as native messages. The high-contrast
/// filters call it with the first filter installed and stop with the last one gone. GUI thread; repeated calls change
/// nothing.
///
/// Windows: nothing to do. Linux: Qt's change of the application's palette.
void startThemeNotices();
void stopThemeNotices();

} // namespace ostra::utils::event_filters
