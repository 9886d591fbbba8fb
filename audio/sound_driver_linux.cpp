// SPDX-License-Identifier: Apache-2.0
#include "audio/sound_driver.h"

#include "audio/endpoints/pulse_connection_linux.h"

#include <pulse/introspect.h>

namespace ostra::audio {

namespace {

void noteMissingDefault(pa_context * /*context*/, const pa_server_info *info, void *user)
{
    *static_cast<bool *>(user) =
        info != nullptr && (info->default_sink_name == nullptr || info->default_source_name == nullptr);
}

} // namespace

const char *soundDriverName() noexcept { return "pulseaudio"; }

bool canStartSoundLibrary()
{
    bool isDefaultMissing = false;
    PulseConnection server(std::chrono::seconds(2));
    // A server that is not there, or does not answer, the library copes with by itself.
    if (server.open())
        server.finish(pa_context_get_server_info(server.context(), noteMissingDefault, &isDefaultMissing));
    return !isDefaultMissing;
}

} // namespace ostra::audio
