// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/sound_state.h"

#include "audio/endpoints/endpoint_id_linux.h"
#include "audio/endpoints/endpoint_volume.h"
#include "audio/endpoints/pulse_connection_linux.h"

#include <pulse/introspect.h>

namespace host {

namespace {

// Called by C code: what memory could not be had for is left out.
void addDefaults(pa_context * /*context*/, const pa_server_info *info, void *user) noexcept
try {
    for (const char *name :
         {info != nullptr ? info->default_sink_name : nullptr, info != nullptr ? info->default_source_name : nullptr}) {
        if (name != nullptr)
            static_cast<QStringList *>(user)->append(QString::fromStdU16String(ostra::audio::endpointIdOf(name)));
    }
} catch (...) {
}

} // namespace

QStringList readDefaultEndpoints()
{
    QStringList ids;
    ostra::audio::PulseConnection server(ostra::audio::passBound);
    if (server.open())
        server.finish(pa_context_get_server_info(server.context(), addDefaults, &ids));
    return ids;
}

} // namespace host
