// SPDX-License-Identifier: Apache-2.0
#include "utils/config_line.h"

#include "utils/ascii_text.h"
#include "utils/byte_blocks.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace ostra::utils {

namespace {

constexpr std::size_t none = std::string_view::npos;

bool contains(std::string_view line, char mark) noexcept { return line.find(mark) != none; }

bool hasAnyBracket(std::string_view line) noexcept
{
    while (line.size() >= byte_blocks::byteCount) {
        const std::uint64_t block = byte_blocks::firstOf(line);
        if (byte_blocks::hasZero(block ^ byte_blocks::allOf('[')) || byte_blocks::hasZero(block ^ byte_blocks::allOf(']')))
            return true;
        line.remove_prefix(byte_blocks::byteCount);
    }
    return std::ranges::any_of(line, [](char byte) { return byte == '[' || byte == ']'; });
}

bool isAt(std::string_view line, std::size_t at, char mark) noexcept { return at < line.size() && line[at] == mark; }

bool isWordAt(std::string_view line, std::size_t at) noexcept { return at < line.size() && isWordByte(line[at]); }

bool isBracketAt(std::string_view line, std::size_t at) noexcept { return isAt(line, at, '[') || isAt(line, at, ']'); }

std::size_t afterBlanks(std::string_view line, std::size_t at) noexcept
{
    while (at < line.size() && isBlankByte(line[at]))
        ++at;
    return at;
}

std::size_t afterWord(std::string_view line, std::size_t at) noexcept
{
    while (isWordAt(line, at))
        ++at;
    return at;
}

/// First position of the word that ends before `end`; `end` itself when there is none.
std::size_t startOfWord(std::string_view line, std::size_t end) noexcept
{
    while (end > 0 && isWordByte(line[end - 1]))
        --end;
    return end;
}

bool isBlanksThenWord(std::string_view text) noexcept
{
    const std::size_t word = afterBlanks(text, 0);
    return word < text.size() && afterWord(text, word) == text.size();
}

/// Two neighbouring marks with nothing, or blanks and one word, between them.
bool isMarkRepeated(std::string_view line, char mark) noexcept
{
    std::size_t at = line.find(mark);
    while (at != none) {
        const std::size_t next = line.find(mark, at + 1);
        if (next == none)
            return false;
        if (next == at + 1 || isBlanksThenWord(line.substr(at + 1, next - at - 1)))
            return true;
        at = next;
    }
    return false;
}

/// A bracket beside an equals sign, or with only a word between the two.
bool mixesBracketAndEquals(std::string_view line) noexcept
{
    for (std::size_t at = line.find('='); at != none; at = line.find('=', at + 1)) {
        if (isBracketAt(line, afterWord(line, at + 1)))
            return true;
        const std::size_t word = startOfWord(line, at);
        if (word > 0 && isBracketAt(line, word - 1))
            return true;
    }
    return false;
}

bool touchesWord(std::string_view line, char mark) noexcept
{
    for (std::size_t at = line.find(mark); at != none; at = line.find(mark, at + 1)) {
        if (isWordAt(line, at + 1) || (at > 0 && isWordByte(line[at - 1])))
            return true;
    }
    return false;
}

bool hasReversedBrackets(std::string_view line) noexcept
{
    for (std::size_t at = line.find(']'); at != none; at = line.find(']', at + 1)) {
        if (isAt(line, afterWord(line, at + 1), '['))
            return true;
    }
    return false;
}

bool hasEmptySectionName(std::string_view line) noexcept
{
    for (std::size_t at = line.find('['); at != none; at = line.find('[', at + 1)) {
        if (isAt(line, afterBlanks(line, at + 1), ']'))
            return true;
    }
    return false;
}

bool isValueWithoutKey(std::string_view line) noexcept
{
    const std::size_t equals = afterBlanks(line, 0);
    return isAt(line, equals, '=') && isWordAt(line, afterBlanks(line, equals + 1));
}

bool isKeyWithoutValue(std::string_view line) noexcept
{
    const std::size_t wordEnd = afterWord(line, 0);
    const std::size_t equals = afterBlanks(line, wordEnd);
    return wordEnd > 0 && isAt(line, equals, '=') && afterBlanks(line, equals + 1) == line.size();
}

std::uint32_t bracketCode(std::string_view line, const ConfigMarks &marks) noexcept
{
    if (!marks.hasClosing)
        return touchesWord(line, '[') ? 1007 : 0;
    if (!marks.hasOpening)
        return touchesWord(line, ']') ? 1008 : 0;
    if (hasReversedBrackets(line))
        return 1009;
    return hasEmptySectionName(line) ? 1011 : 0;
}

std::uint32_t pairCode(std::string_view line) noexcept
{
    if (isValueWithoutKey(line))
        return 1012;
    return isKeyWithoutValue(line) ? 1014 : 0;
}

bool isSectionNameByte(char byte) noexcept { return isWordByte(byte) || isBlankByte(byte) || byte == '*'; }

} // namespace

std::string_view withoutComment(std::string_view line) noexcept { return line.substr(0, line.find(';')); }

bool isBlankConfigLine(std::string_view line) noexcept { return afterBlanks(line, 0) == line.size(); }

ConfigMarks configMarks(std::string_view line) noexcept
{
    const bool hasBrackets = hasAnyBracket(line); // most lines have none
    return {hasBrackets && contains(line, '['), hasBrackets && contains(line, ']'), contains(line, '=')};
}

// The first rule that fires decides. Rules that need a mark the line lacks are left out: they cannot fire.
std::uint32_t configLineCode(std::string_view line, const ConfigMarks &marks) noexcept
{
    const bool hasBracket = marks.hasOpening || marks.hasClosing;
    if (!hasBracket && !marks.hasEquals)
        return 1010;
    if (marks.hasOpening && isMarkRepeated(line, '['))
        return 1001;
    if (marks.hasClosing && isMarkRepeated(line, ']'))
        return 1002;
    if (marks.hasEquals && isMarkRepeated(line, '='))
        return 1003;
    if (marks.hasEquals && hasBracket && mixesBracketAndEquals(line))
        return 1006;
    const std::uint32_t code = hasBracket ? bracketCode(line, marks) : 0;
    if (code != 0 || !marks.hasEquals)
        return code;
    return pairCode(line);
}

ConfigParseResult validateConfigLine(std::string_view line, std::int32_t lineNumber)
{
    ConfigParseResult result;
    result.fileRead = true;
    result.code = configLineCode(line, configMarks(line));
    result.line = result.isError() ? lineNumber : -1;
    return result;
}

std::optional<std::string_view> findSectionName(std::string_view line) noexcept
{
    for (std::size_t at = line.find('['); at != none; at = line.find('[', at)) {
        const std::size_t name = ++at;
        while (at < line.size() && isSectionNameByte(line[at]))
            ++at;
        if (at > name && isAt(line, at, ']'))
            return line.substr(name, at - name);
    }
    return std::nullopt;
}

std::optional<ConfigPair> findKeyAndValue(std::string_view line) noexcept
{
    for (std::size_t at = line.find('='); at != none && at + 1 < line.size(); at = line.find('=', at + 1)) {
        std::size_t keyEnd = at;
        while (keyEnd > 0 && isBlankByte(line[keyEnd - 1]))
            --keyEnd;
        const std::size_t key = startOfWord(line, keyEnd);
        if (key == keyEnd)
            continue;
        const std::size_t value = std::min(afterBlanks(line, at + 1), line.size() - 1);
        return ConfigPair{line.substr(key, keyEnd - key), line.substr(value)};
    }
    return std::nullopt;
}

} // namespace ostra::utils
