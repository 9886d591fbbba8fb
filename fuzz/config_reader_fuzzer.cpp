// SPDX-License-Identifier: Apache-2.0
#include "fuzz/fuzz_check.h"
#include "utils/config_reader.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

using namespace ostra::utils;
using fuzz::require;

namespace {

struct Reading {
    ConfigParseResult result;
    IniConfiguration configuration;

    bool operator==(const Reading &) const = default;
};

Reading read(const std::string &text)
{
    static const fuzz::MemoryFile file;
    file.setContent(text.data(), text.size());
    Reading reading;
    reading.result = readConfigFile(file.path(), reading.configuration);
    return reading;
}

std::string withCarriageReturns(const std::string &text)
{
    std::string result;
    for (const char byte : text)
        result += byte == '\n' ? std::string("\r\n") : std::string(1, byte);
    return result;
}

void checkResult(const Reading &reading, const std::string &text)
{
    constexpr std::array codes{0U, 1U, 2U, 1001U, 1002U, 1003U, 1006U, 1007U, 1008U, 1009U, 1010U, 1011U, 1012U, 1014U};
    const ConfigParseResult &result = reading.result;
    require(result.fileRead, "a file that is there is read");
    require(std::find(codes.begin(), codes.end(), result.code) != codes.end(), "the code is a known one");
    require(result.isError() == (result.line != -1), "a line is named for errors only");
    const auto lineCount = std::count(text.begin(), text.end(), '\n') + 1;
    require(result.line == -1 || (result.line >= 1 && result.line <= lineCount), "the line is one of the file");
    require((result.code == 2) == !result.key.empty(), "a repeated key is named, and no other");
    require(result.code == 1 || result.code == 2 || result.section.empty(), "no other error names a section");
    require(reading.configuration.contains(result.section), "what is repeated was stored");
    require(reading.configuration.contains(std::string()), "keys above all sections have their place");
}

bool isUpperName(const std::string &name)
{
    return std::none_of(name.begin(), name.end(), [](char byte) { return byte >= 'a' && byte <= 'z'; });
}

void checkTable(const IniConfiguration &configuration)
{
    for (const auto &[section, keys] : configuration) {
        require(isUpperName(section), "sections are in upper case");
        for (const auto &[key, value] : keys) {
            require(!key.empty() && isUpperName(key), "keys are in upper case");
            require(!value.empty() && value.find_first_of("\n\r;") == std::string::npos, "a value is a piece of one line");
            require(getConfigValue(configuration, section, key) == value, "what is stored is found");
        }
    }
}

// Values with brackets may lean on what stood before their key; one of blanks only would be a missing one.
bool canBeWrittenAgain(std::string_view value)
{
    return value.find_first_of("[]") == std::string_view::npos && value.find_first_not_of(" \t\v\f") != std::string_view::npos;
}

void checkRoundTrip(const IniConfiguration &configuration)
{
    IniConfiguration kept;
    std::string text;
    for (const auto &[section, keys] : configuration) {
        kept[section];
        text += section.empty() ? std::string() : "[" + section + "]\n";
        for (const auto &[key, value] : keys) {
            if (!canBeWrittenAgain(value))
                continue;
            kept[section][key] = value;
            text += key + " = " + value + "\n";
        }
    }
    const Reading again = read(text);
    require(!again.result.isError(), "what was read can be written and read again");
    require(again.configuration == kept, "reading again gives the same table");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t byteCount)
{
    const std::string text(fuzz::chars(data), byteCount);
    const Reading reading = read(text);
    checkResult(reading, text);
    checkTable(reading.configuration);
    require(read(withCarriageReturns(text)) == reading, "line ends of either kind are read alike");
    if (!text.starts_with("\xEF\xBB\xBF"))
        require(read("\xEF\xBB\xBF" + text) == reading, "a byte order mark changes nothing");
    checkRoundTrip(reading.configuration);
    return 0;
}
