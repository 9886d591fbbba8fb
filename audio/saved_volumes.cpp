// SPDX-License-Identifier: Apache-2.0
#include "audio/saved_volumes.h"

#include <algorithm>
#include <utility>

namespace ostra::audio {

namespace {

float levelOf(std::int32_t percent) { return static_cast<float>(std::clamp(percent, 0, 100) / 100.0); }

} // namespace

bool SavedVolumes::save()
{
    if (saved_)
        return true;
    EndpointVolumes records;
    if (readEndpointVolumes(records) != 0)
        return false;
    savedRecords_ = std::move(records);
    saved_ = true;
    return true;
}

bool SavedVolumes::raise(std::int32_t percent) noexcept
try {
    if (!save())
        return true;
    // Without an id a record is meant for the endpoint at its position.
    const EndpointVolumes raised(savedRecords_.size(), EndpointVolume{levelOf(percent), false, {}, {}});
    return applyEndpointVolumes(raised) != 0;
} catch (...) {
    return true;
}

bool SavedVolumes::restore() const noexcept { return saved_ && applyEndpointVolumes(savedRecords_) != 0; }

bool SavedVolumes::reapplyCurrent() noexcept
{
    EndpointVolumes current;
    readEndpointVolumes(current); // the endpoints before a failing one are worth the attempt
    if (current.empty())
        return true;
    applyEndpointVolumes(current);
    return false;
}

} // namespace ostra::audio
