// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/capture_devices.h"

#include "audio/endpoints/endpoint_names.h"
#include "audio/endpoints/endpoint_volume.h"
#include "audio/endpoints/visit_endpoints_windows.h"
#include "host/precheck/device_names.h"
#include "host/precheck/virtual_devices.h"

#include <algorithm>
#include <vector>

namespace host {

namespace {

using ostra::audio::EndpointName;

// Spelled out: the import libraries of some compilers do not hold it.
constexpr IID endpointId{0x1BE09788, 0x6894, 0x4089, {0x85, 0x86, 0x9A, 0x2A, 0x6C, 0x26, 0x5A, 0xC5}};

bool isInput(IMMDevice *device)
{
    ostra::audio::ComPointer<IMMEndpoint> endpoint;
    EDataFlow flow = eRender;
    return SUCCEEDED(device->QueryInterface(endpointId, endpoint.receiveAny())) && SUCCEEDED(endpoint->GetDataFlow(&flow)) &&
           flow == eCapture;
}

std::vector<std::u16string> inputIds()
{
    std::vector<std::u16string> ids;
    ostra::audio::runPass([&ids](IMMDevice *device, UINT) {
        ostra::audio::CoTaskText id;
        if (isInput(device) && SUCCEEDED(device->GetId(id.receive())))
            ids.push_back(ostra::audio::unitsOf(id.view().substr(0, ostra::audio::idUnitLimit)));
        return S_OK;
    });
    return ids;
}

} // namespace

QList<CaptureDevice> readCaptureDevices()
{
    const QByteArray driver = qgetenv("SDL_AUDIODRIVER");
    if (driver == "dummy" || driver == "disk")
        return {};
    const std::vector<std::u16string> ids = inputIds();
    ostra::audio::EndpointNames endpoints;
    readEndpointNames(endpoints); // the names before a failing one are better than none
    const bool isVirtual = readVirtualDevices().areAll;
    DeviceNames names;
    QList<CaptureDevice> devices;
    for (const EndpointName &endpoint : endpoints) {
        if (std::find(ids.begin(), ids.end(), endpoint.id) != ids.end())
            devices.append({names.next(QString::fromStdString(endpoint.description)), QString::fromStdU16String(endpoint.id),
                            isVirtual, false});
    }
    return devices;
}

QList<CaptureDevice> readMonitors() { return {}; }

} // namespace host
