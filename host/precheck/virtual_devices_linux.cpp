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

void addIfVirtual(const pa_sink_info &sink, Look &look)
{
    const QString name = look.names.next(QString::fromUtf8(sink.description));
    if (sink.card == PA_INVALID_INDEX && (sink.flags & PA_SINK_HARDWARE) == 0)
        look.devices.names.append(name);
}

// Called by C code: an answer that cannot be stored makes the list unknown instead of being thrown.
void addSink(pa_context * /*context*/, const pa_sink_info *sink, int endOfList, void *user) noexcept
{
    auto &look = *static_cast<Look *>(user);
    try {
        if (endOfList == 0)
            addIfVirtual(*sink, look);
    } catch (...) {
        endOfList = -1;
    }
    if (endOfList < 0)
        look.devices.isKnown = false;
}

} // namespace

VirtualDevices readVirtualDevices()
{
    const QByteArray driver = qgetenv("SDL_AUDIODRIVER");
    if (driver == "dummy" || driver == "disk")
        return {{}, true};
    Look look;
    ostra::audio::PulseConnection connection(ostra::audio::passBound);
    if (!connection.open() || !connection.finish(pa_context_get_sink_info_list(connection.context(), addSink, &look)))
        look.devices.isKnown = false;
    return look.devices;
}

} // namespace host
