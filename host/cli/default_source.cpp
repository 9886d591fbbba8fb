// SPDX-License-Identifier: Apache-2.0
#include "host/cli/default_source.h"

#include "host/core/capture_source.h"

namespace host {

QString monitorOrLoopback(const QString &device, const QStringList &inputs)
{
    const QString monitor = monitorPrefix + device;
    return inputs.contains(monitor) ? monitor : loopbackPrefix + device;
}

} // namespace host
