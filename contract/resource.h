// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/entity_id.h"
#include "contract/test.h"

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace ostra {

/// Command-line names of a test or diagnostic, the short letter first. Ordered, and looked up, by packed key.
using NameTable = std::map<EntityId, std::vector<std::string>>;

/// Names, keys and command-line help of a module. Owned by the module interface; one thread at a time. Lookups compare the
/// packed key; an unknown identity gives the empty text.
class Resource {
public:
    /// Empty tables and texts.
    explicit Resource(const EntityId &id) : id_(id) {}
    Resource(const Resource &) = delete;
    Resource &operator=(const Resource &) = delete;

    virtual ~Resource() = default; // slot 0
    /// Slot 1. Opaque machine word, 0 in this module.
    virtual std::uintptr_t handle() const { return handle_; }
    /// Slot 2. Key of the diagnostic's name.
    virtual std::string diagnosticName(EntityId id) const = 0;
    /// Slot 3. Key of the test's name.
    virtual std::string testName(EntityId id) const = 0;
    /// Slot 4. Key of the diagnostic's description.
    virtual std::string diagnosticDescription(EntityId id) const = 0;
    /// Slot 5. Key of the test's description.
    virtual std::string testDescription(EntityId id) const = 0;
    /// Slot 6. The command-line help, English, ready to print.
    virtual std::string helpText() const { return helpText_; }
    /// Slot 7. Empty.
    virtual std::string secondText() const { return secondText_; }
    /// Slot 8. Empty.
    virtual std::string thirdText() const { return thirdText_; }
    /// Slot 9. A copy.
    virtual NameTable testNames() const { return testNames_; }
    /// Slot 10. A copy.
    virtual NameTable diagnosticNames() const { return diagnosticNames_; }
    /// Slot 11. A newly built table, empty in this module.
    virtual ParameterTable parameterTableView() const { return {}; }
    /// Slot 12. Replaces the parameter table with a copy; handing over the resource's own table changes nothing.
    virtual void setParameterTable(const ParameterTable &table) { parameterTable_ = table; }

    /// Identity of the resource object. Not virtual: the host has no slot for it.
    const EntityId &identity() const noexcept { return id_; }
    /// The table as it was last set. Not virtual, for the module's own use.
    const ParameterTable &parameterTable() const noexcept { return parameterTable_; }

protected:
    /// For slot 6.
    void setHelpText(std::string text) { helpText_ = std::move(text); }
    /// For slot 9; a key that is there already stays as it is.
    void addTestNames(const EntityId &id, std::vector<std::string> names) { testNames_.emplace(id, std::move(names)); }
    /// For slot 10; a key that is there already stays as it is.
    void addDiagnosticNames(const EntityId &id, std::vector<std::string> names)
    {
        diagnosticNames_.emplace(id, std::move(names));
    }

private:
    EntityId id_;
    std::string helpText_;
    std::string secondText_;
    std::string thirdText_;
    ParameterTable parameterTable_;
    NameTable testNames_;
    NameTable diagnosticNames_;
    std::uintptr_t handle_ = 0;
};

} // namespace ostra
