// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

/// Character classes and case conversion of the configuration file, on single bytes.
///
/// They look at ASCII only and never at a locale: the host may run under any C or C++ locale, and a Turkish or
/// Latin-1 one would change both the classes and the case of letters. Bytes from 0x80 on belong to no class.
namespace ostra::utils {

/// True for the characters of a name: A-Z, a-z, 0-9 and the underscore.
constexpr bool isWordByte(char byte) noexcept
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') || byte == '_';
}

/// True for the blank, the tabulators (horizontal and vertical), line feed, form feed and carriage return.
constexpr bool isBlankByte(char byte) noexcept { return byte == ' ' || (byte >= '\t' && byte <= '\r'); }

constexpr char toUpperAscii(char byte) noexcept
{
    return (byte >= 'a' && byte <= 'z') ? static_cast<char>(byte - 'a' + 'A') : byte;
}

constexpr char toLowerAscii(char byte) noexcept
{
    return (byte >= 'A' && byte <= 'Z') ? static_cast<char>(byte - 'A' + 'a') : byte;
}

/// Copy of `text` with the letters a-z in upper case; every other byte, NUL included, is kept.
inline std::string toUpperAscii(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](char byte) { return toUpperAscii(byte); });
    return result;
}

/// Copy of `text` with the letters A-Z in lower case; every other byte, NUL included, is kept.
inline std::string toLowerAscii(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](char byte) { return toLowerAscii(byte); });
    return result;
}

} // namespace ostra::utils
