// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <regex>
#include <string>
#include <utility>
#include <vector>

/// The configuration file's format as its patterns define it, run by the standard library. For short lines: some 800 characters
/// may overflow the stack.
class PatternOracle {
public:
    PatternOracle();

    bool isBlank(const std::string &line) const { return std::regex_search(line, blank_); }
    std::uint32_t code(const std::string &line) const;
    std::optional<std::string> section(const std::string &line) const;
    std::optional<std::pair<std::string, std::string>> keyAndValue(const std::string &line) const;

private:
    std::vector<std::regex> checks_;
    std::regex blank_;
    std::regex section_;
    std::regex pair_;
};
