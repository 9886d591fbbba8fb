// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {

/// Lets a screen reader meet the widgets that the program paints itself as what they are: LevelBar as a bar with a value in
/// dBFS, PlotView as a picture, RunBar and LevelWindow as windows. Their constructors call it; more than once does no harm.
void installAccessibleRoles();

} // namespace host
