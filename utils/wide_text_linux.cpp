// SPDX-License-Identifier: Apache-2.0
#include "utils/wide_text.h"

#include <cstddef>

namespace ostra::utils {

namespace {

constexpr char32_t replacementCharacter = 0xFFFD;

constexpr bool isHighSurrogate(char16_t unit) noexcept { return unit >= 0xD800 && unit <= 0xDBFF; }

constexpr bool isLowSurrogate(char16_t unit) noexcept { return unit >= 0xDC00 && unit <= 0xDFFF; }

/// Code point at the front of `text`, which is not empty; the units it takes are removed.
char32_t takeCodePoint(std::u16string_view &text) noexcept
{
    const char16_t unit = text.front();
    text.remove_prefix(1);
    if (!isHighSurrogate(unit))
        return isLowSurrogate(unit) ? replacementCharacter : char32_t{unit};
    if (text.empty() || !isLowSurrogate(text.front()))
        return replacementCharacter;
    const char32_t low = text.front();
    text.remove_prefix(1);
    return 0x10000 + ((char32_t{unit} - 0xD800) << 10) + (low - 0xDC00);
}

constexpr char continuationByte(char32_t bits) noexcept { return static_cast<char>(0x80 | (bits & 0x3F)); }

void appendUtf8(std::string &result, char32_t point)
{
    if (point < 0x80) {
        result += static_cast<char>(point);
        return;
    }
    if (point < 0x800) {
        result += static_cast<char>(0xC0 | (point >> 6));
    } else if (point < 0x10000) {
        result += static_cast<char>(0xE0 | (point >> 12));
        result += continuationByte(point >> 6);
    } else {
        result += static_cast<char>(0xF0 | (point >> 18));
        result += continuationByte(point >> 12);
        result += continuationByte(point >> 6);
    }
    result += continuationByte(point);
}

} // namespace

std::string toUtf8(std::u16string_view text)
{
    text = text.substr(0, text.find(u'\0'));
    std::string result;
    result.reserve(text.size());
    while (!text.empty())
        appendUtf8(result, takeCodePoint(text));
    return result;
}

} // namespace ostra::utils
