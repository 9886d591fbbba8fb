// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// One line of the configuration file: what it may look like and what it says.
///
/// Lines are UTF-8 bytes without their line end. Every function here is a plain loop over the bytes: time grows
/// linearly with the line and the stack not at all, whatever the file holds. `utils/config_vocabulary.h` gives the
/// same rules as regular expressions (ECMAScript, searched anywhere in the line).
///
/// Threading: pure functions, callable from any thread. Errors: nothing but std::bad_alloc leaves them.
namespace ostra::utils {

/// Outcome of reading a configuration file or of checking one line.
struct ConfigParseResult {
    /// The file could be opened, whether or not a line was rejected afterwards.
    bool fileRead = false;
    /// 0: no error. 1: section defined twice. 2: key defined twice in a section. 1001-1014: rejected syntax.
    std::uint32_t code = 0;
    /// Rejected line, counted from 1 over every physical line; -1 without an error.
    std::int32_t line = -1;
    /// The repeated key for code 2, else empty.
    std::string key;
    /// The repeated section for code 1, the section with the repeated key for code 2, else empty.
    std::string section;

    bool isError() const noexcept { return code != 0; }
    bool operator==(const ConfigParseResult &) const = default;
};

/// A key and its value as they stand in the line; both views point into the line.
struct ConfigPair {
    std::string_view key;
    std::string_view value;
};

/// Which of the marks that have a meaning the line holds.
struct ConfigMarks {
    bool hasOpening = false; ///< "["
    bool hasClosing = false; ///< "]"
    bool hasEquals = false;  ///< "="
};

/// The line without its comment: everything before the first ";". There is no quoting.
std::string_view withoutComment(std::string_view line) noexcept;

/// True when the line is empty or holds blanks only.
bool isBlankConfigLine(std::string_view line) noexcept;

/// The marks of a line without comment: looked for once, as a line may be millions of bytes long.
ConfigMarks configMarks(std::string_view line) noexcept;

/// Syntax code of a line without comment: 0, or 1001-1003, 1006-1012 or 1014. A blank line gives 1010. `marks` are the line's.
std::uint32_t configLineCode(std::string_view line, const ConfigMarks &marks) noexcept;

/// `configLineCode` as a result: `fileRead` true, `line` the given number for a rejected line and -1 otherwise.
ConfigParseResult validateConfigLine(std::string_view line, std::int32_t lineNumber);

/// Name between the first pair of brackets that holds nothing but word characters, blanks and "*", as written.
std::optional<std::string_view> findSectionName(std::string_view line) noexcept;

/// First word that is followed by "=" (blanks between are allowed) and at least one more character.
/// Blanks after "=" are not part of the value, except that a value of blanks only is the last of them.
std::optional<ConfigPair> findKeyAndValue(std::string_view line) noexcept;

} // namespace ostra::utils
