// SPDX-License-Identifier: Apache-2.0
#include "utils/screen_sources.h"

namespace ostra::utils {

std::optional<std::uint32_t> monitorDpi() { return std::nullopt; }

} // namespace ostra::utils
