// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/listening_sources.h"

#include "audio/endpoints/endpoint_volume.h"
#include "host/core/capture_source.h"
#include "host/precheck/endpoint_kinds_windows.h"

#include <algorithm>

namespace host {

namespace {

using ostra::audio::EndpointVolume;

ListeningSource sourceOf(const EndpointKind &endpoint, const ostra::audio::EndpointVolumes &volumes)
{
    ListeningSource source;
    source.name = endpoint.name;
    source.isVirtual = endpoint.isRootEnumerated || isUnderWine();
    if (endpoint.name.startsWith(monitorPrefix))
        source.hearsOutputs = {endpoint.name.mid(monitorPrefix.size())};
    const auto volume = std::find_if(volumes.begin(), volumes.end(), [&endpoint](const EndpointVolume &entry) {
        return QString::fromStdU16String(entry.id) == endpoint.id;
    });
    if (volume != volumes.end()) {
        source.isMuted = volume->muted;
        source.level = volume->level;
    }
    return source;
}

} // namespace

std::optional<QList<ListeningSource>> readListeningSources()
{
    const std::optional<QList<EndpointKind>> endpoints = readEndpointKinds();
    ostra::audio::EndpointVolumes volumes;
    if (!endpoints || readEndpointVolumes(volumes) != 0)
        return std::nullopt;
    QList<ListeningSource> sources;
    for (const EndpointKind &endpoint : *endpoints) {
        if (endpoint.isInput)
            sources.append(sourceOf(endpoint, volumes));
    }
    return sources;
}

} // namespace host
