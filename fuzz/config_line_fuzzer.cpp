// SPDX-License-Identifier: Apache-2.0
#include "autotests/utils/config_pattern_oracle.h"
#include "fuzz/fuzz_check.h"
#include "utils/config_line.h"

using namespace ostra::utils;
using fuzz::require;

// The matchers written by hand against the patterns that define the format, on lines that the engine steers into new branches.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t byteCount)
{
    static const PatternOracle oracle;
    const std::string line(fuzz::chars(data), byteCount);
    require(configLineCode(line, configMarks(line)) == oracle.code(line), "the code is that of the patterns");
    require(isBlankConfigLine(line) == oracle.isBlank(line), "blank is what the pattern takes for blank");

    const auto section = findSectionName(line);
    const auto expectedSection = oracle.section(line);
    require(section.has_value() == expectedSection.has_value(), "a section is found where the pattern finds one");
    require(!section || *section == *expectedSection, "the section has the same name");

    const auto pair = findKeyAndValue(line);
    const auto expectedPair = oracle.keyAndValue(line);
    require(pair.has_value() == expectedPair.has_value(), "a key is found where the pattern finds one");
    require(!pair || (pair->key == expectedPair->first && pair->value == expectedPair->second), "key and value are the same");
    return 0;
}
