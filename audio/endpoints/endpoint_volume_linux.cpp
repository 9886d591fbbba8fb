// SPDX-License-Identifier: Apache-2.0
#include "audio/endpoints/endpoint_volume.h"

#include "audio/endpoints/endpoint_id_linux.h"
#include "audio/endpoints/pulse_connection_linux.h"

#include <pulse/introspect.h>
#include <pulse/volume.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <iterator>
#include <new>
#include <utility>

namespace ostra::audio {

namespace {

enum class Direction { playback, capture };

struct Endpoint {
    Direction direction;
    std::uint32_t index;
    std::u16string id;
    pa_cvolume volume;
    bool muted;
};

struct Endpoints {
    std::vector<Endpoint> list;
    bool isWhole = true;
    bool hasMemory = true;
};

// The callbacks are called by C code: an answer that cannot be stored makes the list incomplete instead of being thrown.
template <typename Info>
void add(Endpoints &endpoints, Direction direction, const Info &info) noexcept
try {
    endpoints.list.push_back({direction, info.index, endpointIdOf(info.name), info.volume, info.mute != 0});
} catch (...) {
    endpoints.isWhole = false;
    endpoints.hasMemory = false;
}

void addSink(pa_context *, const pa_sink_info *info, int endOfList, void *user) noexcept
{
    auto &endpoints = *static_cast<Endpoints *>(user);
    if (endOfList == 0)
        add(endpoints, Direction::playback, *info);
    else if (endOfList < 0)
        endpoints.isWhole = false;
}

void addSource(pa_context *, const pa_source_info *info, int endOfList, void *user) noexcept
{
    auto &endpoints = *static_cast<Endpoints *>(user);
    if (endOfList < 0)
        endpoints.isWhole = false;
    else if (endOfList == 0 && info->monitor_of_sink == PA_INVALID_INDEX)
        add(endpoints, Direction::capture, *info);
}

void noteSuccess(pa_context *, int success, void *user) noexcept { *static_cast<bool *>(user) = success != 0; }

bool enumerate(PulseConnection &server, Endpoints &endpoints)
{
    return server.open() && server.finish(pa_context_get_sink_info_list(server.context(), addSink, &endpoints)) &&
           server.finish(pa_context_get_source_info_list(server.context(), addSource, &endpoints)) && endpoints.isWhole;
}

bool setVolume(PulseConnection &server, const Endpoint &endpoint, const pa_cvolume &volume)
{
    const auto set =
        endpoint.direction == Direction::playback ? pa_context_set_sink_volume_by_index : pa_context_set_source_volume_by_index;
    bool isDone = false;
    return server.finish(set(server.context(), endpoint.index, &volume, noteSuccess, &isDone)) && isDone;
}

bool setMuted(PulseConnection &server, const Endpoint &endpoint, bool muted)
{
    const auto set =
        endpoint.direction == Direction::playback ? pa_context_set_sink_mute_by_index : pa_context_set_source_mute_by_index;
    bool isDone = false;
    return server.finish(set(server.context(), endpoint.index, muted ? 1 : 0, noteSuccess, &isDone)) && isDone;
}

float levelOf(const pa_cvolume &volume)
{
    const pa_volume_t loudest = std::min(pa_cvolume_max(&volume), pa_volume_t{PA_VOLUME_NORM});
    return static_cast<float>(static_cast<double>(loudest) / PA_VOLUME_NORM);
}

EndpointVolume recordOf(const Endpoint &endpoint)
{
    const auto *first = endpoint.volume.values;
    return {levelOf(endpoint.volume), endpoint.muted, endpoint.id, {first, first + endpoint.volume.channels}};
}

// Channels come back as they were, above 100 % too: that was the user's own choice. What this code chooses stays within 100 %.
pa_cvolume volumeFor(const Endpoint &endpoint, const EndpointVolume &record)
{
    pa_cvolume volume = endpoint.volume;
    if (record.channelVolumes.size() == volume.channels) {
        std::ranges::copy(record.channelVolumes, volume.values);
        return volume;
    }
    const double level = std::clamp(static_cast<double>(record.level), 0.0, 1.0);
    pa_cvolume_set(&volume, volume.channels, static_cast<pa_volume_t>(std::lround(level * PA_VOLUME_NORM)));
    return volume;
}

bool applyRecord(PulseConnection &server, const Endpoint &endpoint, const EndpointVolume &record)
{
    return setVolume(server, endpoint, volumeFor(endpoint, record)) &&
           (endpoint.muted == record.muted || setMuted(server, endpoint, record.muted));
}

bool read(EndpointVolumes &list)
{
    PulseConnection server(passBound);
    Endpoints endpoints;
    const bool isRead = enumerate(server, endpoints);
    std::ranges::transform(endpoints.list, std::back_inserter(list), recordOf);
    return isRead;
}

bool apply(const EndpointVolumes &list, std::chrono::milliseconds bound)
{
    PulseConnection server(bound);
    Endpoints endpoints;
    if (!enumerate(server, endpoints)) {
        if (!endpoints.hasMemory)
            throw std::bad_alloc();
        return false;
    }
    for (std::size_t position = 0; position < endpoints.list.size(); ++position) {
        const Endpoint &endpoint = endpoints.list[position];
        const EndpointVolume *record = chooseRecord(list, endpoint.id, position);
        if (record == nullptr || !applyRecord(server, endpoint, *record))
            return false;
    }
    return true;
}

} // namespace

int readEndpointVolumes(EndpointVolumes &list) noexcept
try {
    return read(list) ? 0 : 1;
} catch (...) {
    return 1;
}

// Memory may be short for a moment only, and what is not put back stays loud: then it is tried once more, within the same
// bound.
int applyEndpointVolumes(const EndpointVolumes &list) noexcept
{
    using std::chrono::steady_clock;
    const steady_clock::time_point end = steady_clock::now() + passBound;
    for (int attempt = 0; attempt < 2; ++attempt) {
        try {
            return apply(list, std::chrono::ceil<std::chrono::milliseconds>(end - steady_clock::now())) ? 0 : 1;
        } catch (...) {
            continue;
        }
    }
    return 1;
}

} // namespace ostra::audio
