// SPDX-License-Identifier: Apache-2.0
#include "audio/endpoints/endpoint_volume.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace ostra::audio {

namespace {

const EndpointVolume *findById(const EndpointVolumes &list, const std::u16string &id)
{
    const auto found = std::ranges::find(list, id, &EndpointVolume::id);
    return found == list.end() ? nullptr : &*found;
}

} // namespace

const EndpointVolume *chooseRecord(const EndpointVolumes &list, std::u16string_view id, std::size_t position) noexcept
{
    for (const EndpointVolume &record : list) {
        if (record.id.empty())
            return position < list.size() ? &list[position] : nullptr;
        if (record.id == id)
            return &record;
    }
    return nullptr;
}

bool hasSameVolume(const EndpointVolume &one, const EndpointVolume &other) noexcept
{
    if (one.muted != other.muted)
        return false;
    if (!one.channelVolumes.empty() && one.channelVolumes.size() == other.channelVolumes.size())
        return one.channelVolumes == other.channelVolumes;
    return std::abs(one.level - other.level) < levelTolerance;
}

EndpointVolumes changedEndpoints(const EndpointVolumes &saved, const EndpointVolumes &current)
{
    EndpointVolumes changed;
    std::ranges::copy_if(saved, std::back_inserter(changed), [&current](const EndpointVolume &record) {
        const EndpointVolume *now = findById(current, record.id);
        return now != nullptr && !hasSameVolume(record, *now);
    });
    return changed;
}

EndpointVolumes withNewcomers(EndpointVolumes saved, const EndpointVolumes &current)
{
    for (const EndpointVolume &record : current) {
        if (findById(saved, record.id) == nullptr)
            saved.push_back(record);
    }
    return saved;
}

} // namespace ostra::audio
