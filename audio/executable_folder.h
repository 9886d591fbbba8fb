// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace ostra::audio {

/// Folder of the running executable: UTF-8, "/" as separator on Windows too, no trailing slash. Empty when the system does
/// not tell the path: on Windows also for a path of 260 units or more, the size of the buffer that is offered.
std::string executableFolder();

} // namespace ostra::audio
