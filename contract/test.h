// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/entity_id.h"
#include "contract/opaque_record.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace ostra {

class SystemComponent;
class TestContext;

/// Table that the host hands to `Test::configure` and to the resource object: small integer keys to texts.
using ParameterTable = std::map<std::uint32_t, std::string>;

/// One test of a diagnostic. The host calls it through the slot order below, which is contract.
///
/// Lists of slots 5 and 7 and the meaning of the flags are the host's own; the base answers are all that this module needs.
class Test {
public:
    /// The identity that the diagnostic and the resource know it by.
    explicit Test(const EntityId &id) : id_(id) {}
    Test(const Test &) = delete;
    Test &operator=(const Test &) = delete;

    /// Slot 0. Frees the record list. Called by the module's tear-down.
    virtual ~Test() = default;
    /// Slot 1. Whether the test can run on `component`; null is allowed and answers false.
    virtual bool isSupported(SystemComponent *component) = 0;
    /// Slot 2. Runs synchronously on the calling thread and returns a code of `ostra::result`. `context` stays the host's.
    virtual std::uint32_t run(TestContext *context) = 0;
    /// Slot 3. True for both tests of this module.
    virtual bool firstFlag() = 0;
    /// Slot 4.
    virtual bool secondFlag() { return false; }
    /// Slot 5. Empty.
    virtual std::vector<OpaqueRecord> firstList() { return {}; }
    /// Slot 6. The text is ignored.
    virtual void setOption(std::string text) { static_cast<void>(text); }
    /// Slot 7. Empty.
    virtual std::vector<OpaqueRecord> secondList() { return {}; }
    /// Slot 8.
    virtual bool thirdFlag() { return true; }
    /// Slot 9.
    virtual bool fourthFlag() { return true; }
    /// Slot 10. Both arguments are ignored.
    virtual bool configure(ParameterTable table, std::uint64_t value)
    {
        return static_cast<void>(table), static_cast<void>(value), true;
    }
    /// Slot 11.
    virtual void reset() {}

    /// Identity of the test. Not virtual: the host has no slot for it.
    const EntityId &identity() const noexcept { return id_; }

private:
    EntityId id_;
    std::vector<OpaqueRecord> records_; // the host's; never filled here
};

} // namespace ostra
