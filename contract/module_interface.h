// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/diagnostic.h"
#include "contract/resource.h"
#include "contract/system_component_manager.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace ostra {

/// The one object that the host gets from the library; everything else hangs below it. Built by
/// `GetModuleInterfaceInstance`, destroyed with all it owns by `ReleaseModuleInterfaceInstance`, on one thread.
class ModuleInterface {
public:
    /// All pointers are raw on purpose: the tear-down of the library destroys each object in a fixed order, through these
    /// slots, before it destroys this one.
    ModuleInterface(std::vector<Diagnostic *> diagnostics, Resource *resource, SystemComponentManager *componentManager,
                    void *auxiliary)
        : diagnostics_(std::move(diagnostics)), resource_(resource), componentManager_(componentManager), auxiliary_(auxiliary)
    {}
    ModuleInterface(const ModuleInterface &) = delete;
    ModuleInterface &operator=(const ModuleInterface &) = delete;

    /// Slot 0. Releases the two lists, not what they point at.
    virtual ~ModuleInterface() = default;
    /// Slot 1. Null when `index` is not below the count.
    virtual Diagnostic *diagnosticAt(std::uint32_t index) const
    {
        return index < diagnostics_.size() ? diagnostics_[index] : nullptr;
    }
    /// Slot 2. Number of diagnostics: 1.
    virtual std::uint64_t diagnosticCount() const { return diagnostics_.size(); }
    /// Slot 3.
    virtual Resource *resource() const { return resource_; }
    /// Slot 4.
    virtual SystemComponentManager *componentManager() const { return componentManager_; }
    /// Slot 5. Null when out of range; this module has no such item.
    virtual void *additionalItemAt(std::uint32_t index) const
    {
        return index < additionalItems_.size() ? additionalItems_[index] : nullptr;
    }
    /// Slot 6. 0 in this module.
    virtual std::uint64_t additionalItemCount() const { return additionalItems_.size(); }
    /// Slot 7. Null in this module.
    virtual void *auxiliary() const { return auxiliary_; }
    /// Slot 8. True in this module: its tests need a user.
    virtual bool requiresInteraction() const { return false; }

private:
    std::vector<Diagnostic *> diagnostics_;
    Resource *resource_;
    SystemComponentManager *componentManager_;
    void *auxiliary_;
    std::vector<void *> additionalItems_;
};

} // namespace ostra
