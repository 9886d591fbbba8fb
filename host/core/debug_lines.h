// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {

/// Keeps the module's debug lines, which are of use to its developers only, off the standard error. Warnings stay, and what the
/// user's own QT_LOGGING_RULES ask for is shown nevertheless. Any time before the first line.
void hideDebugLines();

} // namespace host
