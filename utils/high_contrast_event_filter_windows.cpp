// SPDX-License-Identifier: Apache-2.0
#include "utils/screen_sources.h"
#include "utils/theme_notices.h"

#include <windows.h>

#include <cstddef>

namespace ostra::utils {

// What the filter assumes of native messages.
static_assert(offsetof(MSG, message) == sizeof(void *) && sizeof(MSG::message) == sizeof(std::uint32_t));
static_assert(WM_THEMECHANGED == 794);

bool desktopHighContrast()
{
    HIGHCONTRASTW record{};
    record.cbSize = sizeof record;
    SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof record, &record, 0); // a failing call leaves the flags 0
    return (record.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

namespace event_filters {

void startThemeNotices() {}
void stopThemeNotices() {}

} // namespace event_filters

} // namespace ostra::utils
