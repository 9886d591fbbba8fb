// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/sound_state.h"

#include "audio/endpoints/endpoint_volume.h"
#include "audio/endpoints/visit_endpoints_windows.h"

namespace host {

namespace {

using ostra::audio::ComPointer;

// A machine without a device of that direction has no default one: that is no failure.
void addDefault(IMMDeviceEnumerator *enumerator, EDataFlow flow, QStringList &ids)
{
    ComPointer<IMMDevice> device;
    ostra::audio::CoTaskText id;
    if (SUCCEEDED(enumerator->GetDefaultAudioEndpoint(flow, eConsole, device.receive())) &&
        SUCCEEDED(device->GetId(id.receive())))
        ids.append(QString::fromStdU16String(ostra::audio::unitsOf(id.view().substr(0, ostra::audio::idUnitLimit))));
}

} // namespace

QStringList readDefaultEndpoints()
{
    QStringList ids;
    const ostra::audio::ComApartment apartment;
    ComPointer<IMMDeviceEnumerator> enumerator;
    if (!apartment.isUsable() || FAILED(CoCreateInstance(ostra::audio::deviceEnumeratorClass, nullptr, CLSCTX_INPROC_SERVER,
                                                         ostra::audio::deviceEnumeratorId, enumerator.receiveAny())))
        return ids;
    addDefault(enumerator.get(), eRender, ids);
    addDefault(enumerator.get(), eCapture, ids);
    return ids;
}

} // namespace host
