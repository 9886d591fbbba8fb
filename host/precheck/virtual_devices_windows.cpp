// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/virtual_devices.h"

#include "host/precheck/endpoint_kinds_windows.h"

#include <QByteArray>

namespace host {

VirtualDevices readVirtualDevices()
{
    const QByteArray driver = qgetenv("SDL_AUDIODRIVER");
    if (isUnderWine() || driver == "dummy" || driver == "disk")
        return {{}, true};
    const std::optional<QList<EndpointKind>> endpoints = readEndpointKinds();
    VirtualDevices devices{{}, false, endpoints.has_value()};
    for (const EndpointKind &endpoint : endpoints.value_or(QList<EndpointKind>())) {
        if (!endpoint.isInput && endpoint.isRootEnumerated)
            devices.names.append(endpoint.name);
    }
    return devices;
}

} // namespace host
