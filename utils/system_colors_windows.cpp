// SPDX-License-Identifier: Apache-2.0
#include "utils/screen_sources.h"

#include <windows.h>

namespace ostra::utils {

std::uint32_t desktopColor(int index) { return GetSysColor(index); }

} // namespace ostra::utils
