// SPDX-License-Identifier: Apache-2.0
#include "utils/language.h"

#include "utils/ascii_text.h"
#include "utils/config_reader.h"
#include "utils/config_vocabulary.h"
#include "utils/system_language.h"
#include "utils/wide_text.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace ostra::utils {

namespace {

constexpr std::string_view fallbackLanguage = "en_US";

constexpr bool isBefore(const LanguageAlias &left, const LanguageAlias &right) noexcept { return left.name < right.name; }

static_assert(std::is_sorted(languageAliases.begin(), languageAliases.end(), isBefore));

struct LanguageState {
    std::string current;
    std::string configured;
};

LanguageState &languageState()
{
    static LanguageState state;
    return state;
}

const LanguageAlias *findAlias(std::string_view text)
{
    const std::string name = toLowerAscii(text);
    const auto alias = std::lower_bound(languageAliases.begin(), languageAliases.end(), LanguageAlias{name, {}}, isBefore);
    return alias != languageAliases.end() && alias->name == name ? &*alias : nullptr;
}

// The result of reading is not looked at: what stands before a rejected line counts, and a missing file is no error.
std::string configuredLanguageName()
{
    IniConfiguration configuration;
    readConfigFile(std::string(configFileName), configuration);
    return getConfigValue(configuration, std::string(config_section::language), std::string(config_key::defaultLanguage));
}

std::optional<std::string> systemLanguage()
{
    LanguageList list{};
    std::uint32_t languageCount = 0;
    if (!systemLanguages(languageCount, list) || languageCount == 0)
        return std::nullopt;
    std::string language = toUtf8(std::u16string_view(list.data(), list.size()));
    std::replace(language.begin(), language.end(), '-', '_');
    return language;
}

} // namespace

void initLanguage()
{
    LanguageState &state = languageState();
    if (const LanguageAlias *alias = findAlias(configuredLanguageName())) {
        state.current = alias->code;
        state.configured = alias->code;
        return;
    }
    if (auto language = systemLanguage())
        state.current = *std::move(language);
    if (findAlias(state.current) == nullptr)
        state.current = fallbackLanguage;
}

std::string currentLanguage() { return languageState().current; }

std::string configuredLanguage() { return languageState().configured; }

} // namespace ostra::utils
