// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace ostra {

/// Registers the icons and animations below ":/audio/resources/icons/". The module's entry and the main functions of tests
/// call it before the first dialog; calling it again does nothing. GUI thread.
void initIcons();

} // namespace ostra
