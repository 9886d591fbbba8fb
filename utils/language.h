// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <string>
#include <string_view>

/// The language of the module: which spoken digits are played and reported.
///
/// Two process-wide values without a lock: `initLanguage` runs on the thread that creates audio components, the
/// others may be called from any thread while no `initLanguage` runs.
namespace ostra::utils {

/// A lower-case name and the language code it stands for.
struct LanguageAlias {
    std::string_view name;
    std::string_view code;
};

/// Every known name, ordered by name. Portuguese has no word of its own on purpose: only the Brazilian clips exist.
inline constexpr std::array<LanguageAlias, 17> languageAliases = {{
    {"chinese", "zh_CN"},
    {"de_de", "de_DE"},
    {"dutch", "nl_NL"},
    {"en_us", "en_US"},
    {"english", "en_US"},
    {"es_es", "es_ES"},
    {"fr_fr", "fr_FR"},
    {"french", "fr_FR"},
    {"german", "de_DE"},
    {"it_it", "it_IT"},
    {"italian", "it_IT"},
    {"ja_jp", "ja_JP"},
    {"japanese", "ja_JP"},
    {"nl_nl", "nl_NL"},
    {"pt_br", "pt_BR"},
    {"spanish", "es_ES"},
    {"zh_cn", "zh_CN"},
}};

/// Settles the language afresh: from `DEFAULT_LANGUAGE` of "config.ini" in the current directory, else from the
/// system, else "en_US". When the system fails, the language in force so far is kept if it is a known one.
/// Whatever the file holds, a language taken from it is always a code of `languageAliases`; one taken from the system
/// is a known name in the system's own letter case. Nothing but std::bad_alloc leaves it.
void initLanguage();

/// The language in force ("en_US"), empty before the first `initLanguage`.
std::string currentLanguage();

/// The last language that came from the configuration file, empty when none ever did.
std::string configuredLanguage();

} // namespace ostra::utils
