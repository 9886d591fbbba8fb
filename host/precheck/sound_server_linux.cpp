// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/machine.h"

#include "audio/endpoints/endpoint_volume.h"
#include "audio/endpoints/pulse_connection_linux.h"

#include <pulse/introspect.h>

namespace host {

namespace {

// Called by C code: what memory could not be had for is left out.
void noteServer(pa_context * /*context*/, const pa_server_info *server, void *user) noexcept
try {
    if (server != nullptr)
        *static_cast<QString *>(user) =
            QString::fromUtf8(server->server_name) + u' ' + QString::fromUtf8(server->server_version);
} catch (...) {
}

} // namespace

QString soundServerName()
{
    QString name;
    ostra::audio::PulseConnection connection(ostra::audio::passBound);
    if (connection.open())
        connection.finish(pa_context_get_server_info(connection.context(), noteServer, &name));
    return name.trimmed();
}

} // namespace host
