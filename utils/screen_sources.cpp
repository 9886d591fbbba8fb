// SPDX-License-Identifier: Apache-2.0
#include "utils/screen_sources.h"

namespace ostra::utils {

ScreenSources &screenSources() noexcept
{
    static ScreenSources sources;
    return sources;
}

} // namespace ostra::utils
