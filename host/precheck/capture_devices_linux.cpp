// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/capture_devices.h"

#include "audio/endpoints/endpoint_volume.h"
#include "audio/endpoints/pulse_connection_linux.h"
#include "host/precheck/device_names.h"

#include <pulse/introspect.h>

namespace host {

namespace {

struct Look {
    bool isForMonitors = false;
    DeviceNames names;
    QList<CaptureDevice> devices;
};

// Called by C code: what memory could not be had for is left out.
void addSource(pa_context * /*context*/, const pa_source_info *source, int endOfList, void *user) noexcept
try {
    auto &look = *static_cast<Look *>(user);
    if (endOfList != 0 || source == nullptr || (source->monitor_of_sink != PA_INVALID_INDEX) != look.isForMonitors)
        return;
    const bool isVirtual = source->card == PA_INVALID_INDEX && (source->flags & PA_SOURCE_HARDWARE) == 0;
    look.devices.append({look.names.next(QString::fromUtf8(source->description)), QString::fromUtf8(source->name), isVirtual,
                         look.isForMonitors});
} catch (...) {
}

QList<CaptureDevice> readSources(bool isForMonitors)
{
    const QByteArray driver = qgetenv("SDL_AUDIODRIVER");
    if (driver == "dummy" || driver == "disk")
        return {};
    Look look{isForMonitors, {}, {}};
    ostra::audio::PulseConnection connection(ostra::audio::passBound);
    if (connection.open())
        connection.finish(pa_context_get_source_info_list(connection.context(), addSource, &look));
    return look.devices;
}

} // namespace

QList<CaptureDevice> readCaptureDevices() { return readSources(false); }

QList<CaptureDevice> readMonitors() { return readSources(true); }

} // namespace host
