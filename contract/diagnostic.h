// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/entity_id.h"
#include "contract/test.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace ostra {

/// A named group of tests. Built and destroyed by the module; the host only reads it, on the thread that holds the instance.
class Diagnostic {
public:
    /// `tests` are raw on purpose: the module's tear-down destroys each of them, re-reading the count as it goes, so the
    /// diagnostic must not.
    Diagnostic(const EntityId &id, std::vector<Test *> tests) : id_(id), tests_(std::move(tests)) {}
    Diagnostic(const Diagnostic &) = delete;
    Diagnostic &operator=(const Diagnostic &) = delete;

    /// Slot 0. Frees the list only.
    virtual ~Diagnostic() = default;
    /// Slot 1. A copy of the identity.
    virtual EntityId id() const { return id_; }
    /// Slot 2. Number of tests.
    virtual std::uint64_t testCount() const { return tests_.size(); }
    /// Slot 3. The test at that position, owned by the module; null when `index` is not below the count.
    virtual Test *testAt(std::uint32_t index) const { return index < tests_.size() ? tests_[index] : nullptr; }
    /// Slot 4. The first test whose packed key equals that of `id`; null when there is none.
    virtual Test *findTest(EntityId id) const
    {
        const auto found = std::find_if(tests_.begin(), tests_.end(),
                                        [&id](const Test *test) { return test != nullptr && test->identity() == id; });
        return found != tests_.end() ? *found : nullptr;
    }

private:
    EntityId id_;
    std::vector<Test *> tests_;
};

} // namespace ostra
