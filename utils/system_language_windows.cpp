// SPDX-License-Identifier: Apache-2.0
#include "utils/system_language.h"

#include <windows.h>

#include <algorithm>

namespace ostra::utils {

bool preferredUiLanguages(std::uint32_t &languageCount, LanguageList &list)
{
    std::array<wchar_t, languageListUnitCount> buffer{};
    ULONG count = 0;
    ULONG bufferUnitCount = static_cast<ULONG>(buffer.size());
    if (GetUserPreferredUILanguages(MUI_LANGUAGE_NAME, &count, buffer.data(), &bufferUnitCount) == FALSE)
        return false;
    languageCount = count;
    std::copy(buffer.begin(), buffer.end(), list.begin());
    return true;
}

} // namespace ostra::utils
