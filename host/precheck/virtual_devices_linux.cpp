// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/virtual_devices.h"

#include "audio/endpoints/endpoint_volume.h"
#include "audio/endpoints/pulse_connection_linux.h"
#include "host/precheck/device_names.h"

#include <pulse/introspect.h>

namespace host {

namespace {

struct Look {
    DeviceNames names;
    VirtualDevices devices;
};

// Called by C code: what memory could not be had for is left out.
void addSink(pa_context * /*context*/, const pa_sink_info *sink, int endOfList, void *user) noexcept
try {
    if (endOfList != 0 || sink == nullptr)
        return;
    auto &look = *static_cast<Look *>(user);
    const QString name = look.names.next(QString::fromUtf8(sink->description));
    if (sink->card == PA_INVALID_INDEX && (sink->flags & PA_SINK_HARDWARE) == 0)
        look.devices.names.append(name);
} catch (...) {
}

} // namespace

VirtualDevices readVirtualDevices()
{
    const QByteArray driver = qgetenv("SDL_AUDIODRIVER");
    if (driver == "dummy" || driver == "disk")
        return {{}, true};
    Look look;
    ostra::audio::PulseConnection connection(ostra::audio::passBound);
    if (connection.open())
        connection.finish(pa_context_get_sink_info_list(connection.context(), addSink, &look));
    return look.devices;
}

} // namespace host
