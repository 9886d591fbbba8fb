// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The languages the system's user prefers for texts on the screen.
namespace ostra::utils {

/// Room of a language list in UTF-16 units.
inline constexpr std::size_t languageListUnitCount = 512;

/// Zero-terminated language names one after the other, preferred ones first, ended by an empty name.
using LanguageList = std::array<char16_t, languageListUnitCount>;

/// Fills `list` and sets `languageCount`; false when the system fails or the list has no room. `list` comes zeroed.
using SystemLanguageSource = bool (*)(std::uint32_t &languageCount, LanguageList &list);

/// The real source.
///
/// Windows: the user's preferred UI languages by name ("de-DE").
/// Linux: the first of LC_ALL, LC_MESSAGES and LANG that is not empty, up to its first "." or "@" ("de_DE");
/// "C" and "POSIX" stand for no language. The list then has at most one name.
bool preferredUiLanguages(std::uint32_t &languageCount, LanguageList &list);

/// Replaces the source asked by `systemLanguages` and returns the one before; null puts the real one back.
/// For tests of languages and failures this machine does not have; not synchronised with readers.
SystemLanguageSource setSystemLanguageSource(SystemLanguageSource source) noexcept;

/// Asks the source in force.
bool systemLanguages(std::uint32_t &languageCount, LanguageList &list);

} // namespace ostra::utils
