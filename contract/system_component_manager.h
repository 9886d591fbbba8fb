// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/entity_id.h"
#include "contract/system_component.h"

#include <cstdint>
#include <vector>

namespace ostra {

/// Lists the devices of one kind. Owned by the module interface; one thread at a time.
class SystemComponentManager {
public:
    /// An empty list.
    explicit SystemComponentManager(const EntityId &id) : id_(id) {}
    SystemComponentManager(const SystemComponentManager &) = delete;
    SystemComponentManager &operator=(const SystemComponentManager &) = delete;

    /// Slot 0. The audio manager first destroys every component.
    virtual ~SystemComponentManager() = default;
    /// Slot 1. A copy of the identity.
    virtual EntityId id() const { return id_; }
    /// Slot 2. Entries in the list.
    virtual std::uint64_t componentCount() const { return components_.size(); }
    /// Slot 3. The component at that position, valid until the next refresh; null when `index` is not below the count.
    virtual SystemComponent *componentAt(std::uint32_t index) const
    {
        return index < components_.size() ? components_[index] : nullptr;
    }
    /// Slot 4. Whether the machine has a device now; asks the system each time and never looks at the list.
    virtual bool hasComponents() = 0;
    /// Slot 5. The audio manager answers as `componentAt`.
    virtual SystemComponent *hintedComponentAt(std::uint32_t index) = 0;
    /// Slot 6. Destroys the listed components and lists the devices present now. May throw `std::bad_alloc`, the only
    /// exception that crosses this boundary; components listed before it stay.
    virtual void refresh() = 0;

protected:
    /// Raw and owned by the derived manager: a refresh drops foreign components without destroying them.
    std::vector<SystemComponent *> &components() noexcept { return components_; }

private:
    std::vector<SystemComponent *> components_;
    EntityId id_;
};

} // namespace ostra
