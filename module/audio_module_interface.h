// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/module_interface.h"

namespace ostra {

/// The module's own interface object: its end shuts the sound layer down.
class AudioModuleInterface final : public ModuleInterface {
public:
    using ModuleInterface::ModuleInterface;
    /// Quits the whole sound library of the process, then releases the lists. What the lists point at is already gone.
    ~AudioModuleInterface() override;

    bool requiresInteraction() const override { return true; }
};

} // namespace ostra
