// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/sound_state.h"

#include "audio/endpoints/endpoint_names.h"
#include "audio/endpoints/endpoint_volume.h"
#include "host/precheck/device_names.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace host {

namespace {

using ostra::audio::EndpointName;
using ostra::audio::EndpointNames;
using ostra::audio::EndpointVolume;
using ostra::audio::EndpointVolumes;

bool isServerNeeded()
{
    const QByteArray driver = qgetenv("SDL_AUDIODRIVER");
    return driver != "dummy" && driver != "disk";
}

// The level ends at 100 %, a channel of the sound server does not.
int percentOf(const EndpointVolume &volume)
{
    constexpr double fullVolume = 65536.0;
    if (volume.channelVolumes.empty())
        return static_cast<int>(std::lround(static_cast<double>(volume.level) * 100.0));
    return static_cast<int>(std::lround(*std::ranges::max_element(volume.channelVolumes) / fullVolume * 100.0));
}

QList<EndpointStanding> statesOf(const EndpointNames &names, const EndpointVolumes &volumes)
{
    QList<EndpointStanding> states;
    const QStringList defaults = readDefaultEndpoints();
    DeviceNames shown;
    for (const EndpointName &endpoint : names) {
        const QString name = shown.next(QString::fromStdString(endpoint.description));
        const auto volume = std::ranges::find(volumes, endpoint.id, &EndpointVolume::id);
        const QString id = QString::fromStdU16String(endpoint.id);
        if (volume != volumes.end())
            states.append({name, id, percentOf(*volume), volume->muted, defaults.contains(id)});
    }
    return states;
}

std::optional<EndpointStanding> firstOf(const QList<EndpointStanding> &states, QString EndpointStanding::*field,
                                        const QString &text)
{
    const auto found = std::ranges::find(states, text, field);
    return found == states.end() ? std::nullopt : std::optional(*found);
}

} // namespace

std::optional<EndpointStanding> SoundState::output(const QString &name) const
{
    return firstOf(endpoints, &EndpointStanding::name, name);
}

std::optional<EndpointStanding> SoundState::withId(const QString &id) const
{
    return firstOf(endpoints, &EndpointStanding::id, id);
}

bool isSoundServerAnswering()
{
    EndpointNames names;
    return !isServerNeeded() || readEndpointNames(names) == 0;
}

const char *noOutputReason() { return isSoundServerAnswering() ? "REASON_NO_OUTPUT_DEVICE" : "REASON_NO_SERVER"; }

SoundState readSoundState()
{
    SoundState state;
    EndpointNames names;
    EndpointVolumes volumes;
    state.isAnswering = !isServerNeeded() || readEndpointNames(names) == 0;
    if (!state.isAnswering)
        return state;
    state.virtualDevices = readVirtualDevices();
    if (!names.empty() && readEndpointVolumes(volumes) == 0)
        state.endpoints = statesOf(names, volumes);
    return state;
}

} // namespace host
