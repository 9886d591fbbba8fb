// SPDX-License-Identifier: Apache-2.0
#include "host/cli/default_source.h"

#include "host/precheck/capture_devices.h"

namespace host {

// Windows has no monitors; Wine passes on those of the sound server behind it and gives no loopback.
QString defaultSource(const QString &device)
{
    QStringList inputs;
    for (const CaptureDevice &input : readCaptureDevices())
        inputs.append(input.name);
    return monitorOrLoopback(device, inputs);
}

} // namespace host
