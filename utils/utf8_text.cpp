// SPDX-License-Identifier: Apache-2.0
#include "utils/utf8_text.h"

#include "utils/byte_blocks.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace ostra::utils {

namespace {

constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";

unsigned char byteAt(std::string_view bytes, std::size_t at) noexcept
{
    return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : std::uint8_t{0};
}

bool isContinuationAt(std::string_view bytes, std::size_t at) noexcept { return (byteAt(bytes, at) & 0xC0) == 0x80; }

/// Second bytes are narrower after some lead bytes: no overlong forms (E0, F0), surrogates (ED), above U+10FFFF (F4).
bool isSecondByteOf(unsigned char lead, unsigned char second) noexcept
{
    switch (lead) {
    case 0xE0:
        return second >= 0xA0 && second <= 0xBF;
    case 0xED:
        return second >= 0x80 && second <= 0x9F;
    case 0xF0:
        return second >= 0x90 && second <= 0xBF;
    case 0xF4:
        return second >= 0x80 && second <= 0x8F;
    default:
        return second >= 0x80 && second <= 0xBF;
    }
}

/// Byte count of the well-formed sequence that starts at `at`, 0 when there is none.
std::size_t sequenceByteCount(std::string_view bytes, std::size_t at) noexcept
{
    const unsigned char lead = byteAt(bytes, at);
    if (lead < 0x80)
        return 1;
    if (lead < 0xC2 || lead > 0xF4 || !isSecondByteOf(lead, byteAt(bytes, at + 1)))
        return 0;
    if (lead < 0xE0)
        return 2;
    if (!isContinuationAt(bytes, at + 2))
        return 0;
    if (lead < 0xF0)
        return 3;
    return isContinuationAt(bytes, at + 3) ? 4 : 0;
}

/// First position from `at` on that is not ASCII; eight bytes at a time, as most files are ASCII throughout.
std::size_t afterAscii(std::string_view bytes, std::size_t at) noexcept
{
    while (bytes.size() - at >= byte_blocks::byteCount && (byte_blocks::firstOf(bytes.substr(at)) & byte_blocks::highBits) == 0)
        at += byte_blocks::byteCount;
    while (at < bytes.size() && byteAt(bytes, at) < 0x80)
        ++at;
    return at;
}

/// First position from `at` on that starts no well-formed sequence.
std::size_t afterWellFormed(std::string_view bytes, std::size_t at) noexcept
{
    at = afterAscii(bytes, at);
    while (at < bytes.size()) {
        const std::size_t byteCount = sequenceByteCount(bytes, at);
        if (byteCount == 0)
            break;
        at = afterAscii(bytes, at + byteCount);
    }
    return at;
}

} // namespace

bool isUtf8(std::string_view bytes) noexcept { return afterWellFormed(bytes, 0) == bytes.size(); }

bool isAsciiWithoutCarriageReturn(std::string_view bytes) noexcept
{
    while (bytes.size() >= byte_blocks::byteCount) {
        const std::uint64_t block = byte_blocks::firstOf(bytes);
        if ((block & byte_blocks::highBits) != 0 || byte_blocks::hasZero(block ^ byte_blocks::allOf('\r')))
            return false;
        bytes.remove_prefix(byte_blocks::byteCount);
    }
    return std::ranges::none_of(bytes, [](char byte) { return static_cast<unsigned char>(byte) >= 0x80 || byte == '\r'; });
}

std::string repairedUtf8(std::string_view bytes)
{
    std::string result;
    result.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const std::size_t end = afterWellFormed(bytes, at);
        result.append(bytes.substr(at, end - at));
        if (end < bytes.size())
            result.append(replacementCharacter);
        at = end;
    }
    return result;
}

} // namespace ostra::utils
