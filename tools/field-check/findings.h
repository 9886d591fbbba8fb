// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace field_check {

enum class State {
    proved,      ///< seen to be so on this machine
    failed,      ///< seen not to be so
    notPossible, ///< this machine, or nobody's being there, does not let it be seen
};

/// What one check found: its state, a sentence, and figures or texts by name.
struct Finding {
    std::string check;
    std::string statement; ///< what it is about, as a sentence that is true or not
    State state = State::notPossible;
    std::string detail;
    std::vector<std::pair<std::string, std::string>> figures;

    void add(std::string name, std::string value) { figures.emplace_back(std::move(name), std::move(value)); }
    void add(std::string name, long long value) { add(std::move(name), std::to_string(value)); }
    void conclude(State newState, std::string newDetail)
    {
        state = newState;
        detail = std::move(newDetail);
    }
};

const char *wordFor(State state);

/// One JSON document with the machine's figures and every finding, UTF-8.
std::string jsonDocument(const std::vector<std::pair<std::string, std::string>> &machine, const std::vector<Finding> &findings);

} // namespace field_check
