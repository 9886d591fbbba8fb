// SPDX-License-Identifier: Apache-2.0
#include "host/core/capture_source.h"

namespace host {

QString systemSource(const QString &source)
{
    const QString device = loopbackDevice(source);
    return device.isEmpty() ? source : monitorPrefix + device;
}

} // namespace host
