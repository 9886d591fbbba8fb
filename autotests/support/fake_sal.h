// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/sal.h"

#include <functional>
#include <string>
#include <vector>

/// The host's platform library for tests that must choose what it answers. Linked in place of the real one.
namespace fake_sal {

struct Query {
    std::string condition;
    std::string className;
    std::vector<std::string> propertyNames;
    std::string nameSpace;
};

struct State {
    bool hasCim = true;
    bool hasNumberHandler = true;
    std::int32_t queryResult = 0;
    std::size_t failingQuery = 0;  ///< number of the query, from 1, that runs out of memory; 0 for none
    std::vector<sal::CimRow> rows; ///< answered to every query
    std::string numberPrefix;      ///< put before every number, so that a test sees who formatted it
    std::string temporaryPath;
    std::vector<Query> queries; ///< recorded, in order
    /// Called first by every operation, with the name of its service: "cim", "number handler", "timer", "module loader" or
    /// "temporary path". May throw.
    std::function<void(const std::string &service)> onCall = [](const std::string &) {};
};

State &state();

} // namespace fake_sal
