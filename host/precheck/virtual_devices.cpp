// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/virtual_devices.h"

namespace host {

const char *virtualRefusal(const VirtualDevices &devices, const QString &name) noexcept
{
    if (devices.contains(name))
        return "REASON_VIRTUAL_DEVICE";
    return devices.isKnown ? nullptr : "REASON_VIRTUAL_UNKNOWN";
}

} // namespace host
