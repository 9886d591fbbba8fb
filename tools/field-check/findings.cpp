// SPDX-License-Identifier: Apache-2.0
#include "tools/field-check/findings.h"

namespace field_check {

namespace {

std::string quoted(const std::string &text)
{
    constexpr const char *digits = "0123456789abcdef";
    constexpr unsigned char firstPrintable = 0x20;
    std::string result = "\"";
    for (const char letter : text) {
        const auto byte = static_cast<unsigned char>(letter);
        if (letter == '"' || letter == '\\')
            result += '\\';
        if (byte < firstPrintable)
            result += std::string("\\u00") + digits[byte >> 4U] + digits[byte & 0xFU];
        else
            result += letter;
    }
    return result + '"';
}

std::string object(const std::vector<std::pair<std::string, std::string>> &members)
{
    std::string text = "{";
    for (const auto &[name, value] : members)
        text += (text.size() > 1 ? ", " : "") + quoted(name) + ": " + quoted(value);
    return text + '}';
}

} // namespace

const char *wordFor(State state)
{
    switch (state) {
    case State::proved:
        return "proved";
    case State::failed:
        return "failed";
    case State::notPossible:
        break;
    }
    return "not possible here";
}

std::string jsonDocument(const std::vector<std::pair<std::string, std::string>> &machine, const std::vector<Finding> &findings)
{
    std::string text = "{\n  \"schemaVersion\": 1,\n  \"machine\": " + object(machine) + ",\n  \"findings\": [";
    const char *separator = "\n";
    for (const Finding &finding : findings) {
        text += separator;
        text += "    {\"check\": " + quoted(finding.check) + ", \"state\": " + quoted(wordFor(finding.state)) +
                ",\n     \"statement\": " + quoted(finding.statement) + ",\n     \"detail\": " + quoted(finding.detail) +
                ",\n     \"figures\": " + object(finding.figures) + '}';
        separator = ",\n";
    }
    return text + "\n  ]\n}\n";
}

} // namespace field_check
