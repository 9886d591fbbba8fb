// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/capture_devices.h"

#include "host/precheck/endpoint_kinds_windows.h"

#include <QByteArray>

namespace host {

QList<CaptureDevice> readCaptureDevices()
{
    const QByteArray driver = qgetenv("SDL_AUDIODRIVER");
    if (driver == "dummy" || driver == "disk")
        return {};
    QList<CaptureDevice> devices;
    for (const EndpointKind &endpoint : readEndpointKinds().value_or(QList<EndpointKind>())) {
        if (endpoint.isInput)
            devices.append({endpoint.name, endpoint.id, endpoint.isRootEnumerated || isUnderWine(), false});
    }
    return devices;
}

QList<CaptureDevice> readMonitors() { return {}; }

} // namespace host
