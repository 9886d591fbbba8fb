// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace ostra::utils {

/// Stands between the folders of a path and at the end of one: "\" on Windows, "/" on Linux.
extern const char16_t folderSeparator;

} // namespace ostra::utils
