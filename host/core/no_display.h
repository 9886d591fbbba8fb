// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {

/// What the graphical host writes in place of a verdict where there is no display to run on.
inline constexpr const char *noDisplayWords = "no display";

} // namespace host
