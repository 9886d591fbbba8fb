// SPDX-License-Identifier: Apache-2.0
#include "utils/system_language.h"

#include <utility>

namespace ostra::utils {

namespace {

constinit SystemLanguageSource languageSource = preferredUiLanguages;

} // namespace

SystemLanguageSource setSystemLanguageSource(SystemLanguageSource source) noexcept
{
    return std::exchange(languageSource, source == nullptr ? preferredUiLanguages : source);
}

bool systemLanguages(std::uint32_t &languageCount, LanguageList &list) { return languageSource(languageCount, list); }

} // namespace ostra::utils
