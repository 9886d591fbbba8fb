// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/endpoint_look.h"

#include "audio/endpoints/endpoint_names.h"
#include "audio/endpoints/endpoint_volume.h"
#include "host/precheck/capture_devices.h"
#include "host/precheck/device_names.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace host {

namespace {

using ostra::audio::EndpointName;
using ostra::audio::EndpointVolume;
using ostra::audio::EndpointVolumes;

EndpointState stateOf(const EndpointVolume &volume)
{
    constexpr float full = 100.0F;
    return {static_cast<int>(std::lround(volume.level * full)), volume.muted};
}

const EndpointVolume *find(const EndpointVolumes &volumes, const std::u16string &id)
{
    const auto found =
        std::find_if(volumes.begin(), volumes.end(), [&id](const EndpointVolume &entry) { return entry.id == id; });
    return found == volumes.end() || id.empty() ? nullptr : &*found;
}

// The id of an endpoint has one unit for each byte where the system's names are bytes.
QHash<QString, QString> inputNames()
{
    QHash<QString, QString> names;
    const QList<CaptureDevice> devices = readCaptureDevices();
    for (const CaptureDevice &device : devices)
        names.insert(QString::fromLatin1(device.id.toUtf8()), device.name);
    return names;
}

std::optional<EndpointState> stateOf(const QHash<QString, EndpointState> &endpoints, const QString &name)
{
    const auto found = endpoints.constFind(name);
    return found == endpoints.constEnd() ? std::nullopt : std::optional(*found);
}

} // namespace

EndpointLook lookAtEndpoints()
{
    EndpointLook look;
    EndpointVolumes volumes;
    ostra::audio::EndpointNames endpoints;
    if (readEndpointVolumes(volumes) != 0 || readEndpointNames(endpoints) != 0)
        return look;
    const QHash<QString, QString> inputs = inputNames();
    DeviceNames outputs;
    for (const EndpointName &endpoint : endpoints) {
        const QString input = inputs.value(QString::fromStdU16String(endpoint.id));
        const QString name = input.isEmpty() ? outputs.next(QString::fromStdString(endpoint.description)) : input;
        if (const EndpointVolume *volume = find(volumes, endpoint.id))
            (input.isEmpty() ? look.outputs : look.inputs).insert(name, stateOf(*volume));
    }
    look.isComplete = true;
    return look;
}

void noteVolumes(RunRecord &record, const EndpointLook &before, const EndpointLook &after)
{
    record.deviceVolume = {stateOf(before.outputs, record.device.name), stateOf(after.outputs, record.device.name)};
    if (!record.microphone.isEmpty())
        record.microphoneVolume = {stateOf(before.inputs, record.microphone), stateOf(after.inputs, record.microphone)};
}

bool hasGone(const QString &output, const EndpointLook &before, const EndpointLook &after)
{
    return before.isComplete && after.isComplete && before.outputs.contains(output) && !after.outputs.contains(output);
}

} // namespace host
