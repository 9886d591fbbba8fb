// SPDX-License-Identifier: Apache-2.0
#include "autotests/utils/config_pattern_oracle.h"

#include "utils/config_vocabulary.h"

#include <cstddef>
#include <locale>
#include <string_view>

using namespace ostra::utils;

namespace {

std::regex compile(std::string_view pattern)
{
    std::regex result;
    result.imbue(std::locale::classic());
    result.assign(pattern.begin(), pattern.end());
    return result;
}

} // namespace

PatternOracle::PatternOracle()
    : blank_(compile(config_line_pattern::blank)), section_(compile(config_line_pattern::sectionHeader)),
      pair_(compile(config_line_pattern::keyAndValue))
{
    for (const auto &check : config_line_pattern::checks)
        checks_.push_back(compile(check.pattern));
}

std::uint32_t PatternOracle::code(const std::string &line) const
{
    if (line.find_first_of(config_line_pattern::marks) == std::string::npos)
        return 1010;
    for (std::size_t at = 0; at < checks_.size(); ++at) {
        const auto &check = config_line_pattern::checks[at];
        const bool applies = check.absentMark == '\0' || line.find(check.absentMark) == std::string::npos;
        if (applies && std::regex_search(line, checks_[at]))
            return check.code;
    }
    return 0;
}

std::optional<std::string> PatternOracle::section(const std::string &line) const
{
    std::smatch match;
    return std::regex_search(line, match, section_) ? std::optional(match.str(1)) : std::nullopt;
}

std::optional<std::pair<std::string, std::string>> PatternOracle::keyAndValue(const std::string &line) const
{
    std::smatch match;
    if (!std::regex_search(line, match, pair_))
        return std::nullopt;
    return std::pair(match.str(1), match.str(2));
}
