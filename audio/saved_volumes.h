// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/endpoints/endpoint_volume.h"

#include <cstdint>

namespace ostra::audio {

/// What a volume guard remembers, with the operations that are the same on every platform: they differ only in the passes over
/// the endpoints. Each answers true for failure, as the guard does.
class SavedVolumes {
public:
    bool raise(std::int32_t percent) noexcept;
    bool restore() const noexcept;
    static bool reapplyCurrent() noexcept;

private:
    bool save();

    bool saved_ = false;
    EndpointVolumes savedRecords_; ///< in the order of the enumeration that was saved
};

} // namespace ostra::audio
