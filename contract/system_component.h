// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/opaque_record.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace ostra {

/// Ordered (key, value) pairs; the order of insertion is the order of the report.
using PropertyList = std::vector<std::pair<std::string, std::string>>;

/// Copy of what a component tells about itself, fields in this order.
struct SystemComponentInfo {
    std::string id;                                ///< the device name
    std::string secondText;                        ///< empty for audio components
    PropertyList properties;                       ///< in the order of the report
    std::map<std::string, std::string> attributes; ///< empty for audio components
};

/// One device of the machine. Made and destroyed by its manager; a pointer to it dies with the manager's next refresh.
/// Read on the thread that refreshes.
class SystemComponent {
public:
    /// `name` as the sound layer lists the device, UTF-8.
    explicit SystemComponent(std::string name) : name_(std::move(name)) {}
    SystemComponent(const SystemComponent &) = delete;
    SystemComponent &operator=(const SystemComponent &) = delete;

    /// Slot 0. Called by the manager.
    virtual ~SystemComponent() = default;
    /// Slot 1. A copy of the device name (UTF-8) given at construction.
    virtual std::string name() const { return name_; }
    /// Slot 2. A copy of identity text, second text, properties and attributes.
    virtual SystemComponentInfo info() const { return {id_, secondText_, properties_, attributes_}; }
    /// Slot 3. A copy of the sub-entries; empty for audio components.
    virtual std::vector<OpaqueRecord> subComponents() const { return subComponents_; }
    /// Slots 4 to 10 belong to other component families; an audio component answers null, true, true, nothing, true, nothing.
    virtual void *reserved4() = 0;
    virtual bool reserved5() = 0; ///< Slot 5.
    virtual bool reserved6() = 0; ///< Slot 6.
    virtual void reserved7() = 0; ///< Slot 7.
    virtual bool reserved8() = 0; ///< Slot 8.
    virtual void reserved9() = 0; ///< Slot 9.
    virtual void reserved10() {}  ///< Slot 10.

protected:
    void setId(std::string id) { id_ = std::move(id); }         ///< for `info()`
    PropertyList &properties() noexcept { return properties_; } ///< for `info()`, to be filled

private:
    std::string id_;
    std::string secondText_;
    PropertyList properties_;
    std::map<std::string, std::string> attributes_;
    std::vector<OpaqueRecord> subComponents_;
    std::string name_;
};

} // namespace ostra
