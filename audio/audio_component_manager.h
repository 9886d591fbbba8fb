// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/system_component_manager.h"

namespace ostra::audio {

/// Lists the output devices that the sound library knows, one component for each name.
class AudioComponentManager final : public SystemComponentManager {
public:
    using SystemComponentManager::SystemComponentManager;
    ~AudioComponentManager() override;

    bool hasComponents() override;
    SystemComponent *hintedComponentAt(std::uint32_t index) override { return componentAt(index); }
    /// Opens and closes every device and reads the configuration file once for each.
    void refresh() override;

private:
    void listDevices();
    void releaseComponents();
};

} // namespace ostra::audio
