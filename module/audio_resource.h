// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/resource.h"

namespace ostra {

/// Names, keys and command-line help of the audio module.
class AudioResource final : public Resource {
public:
    explicit AudioResource(const EntityId &id);

    std::string diagnosticName(EntityId id) const override;
    std::string testName(EntityId id) const override;
    std::string diagnosticDescription(EntityId id) const override;
    std::string testDescription(EntityId id) const override;
};

} // namespace ostra
