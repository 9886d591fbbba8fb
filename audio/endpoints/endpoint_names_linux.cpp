// SPDX-License-Identifier: Apache-2.0
#include "audio/endpoints/endpoint_names.h"

#include "audio/endpoints/endpoint_id_linux.h"
#include "audio/endpoints/endpoint_volume.h"
#include "audio/endpoints/pulse_connection_linux.h"

#include <pulse/introspect.h>

namespace ostra::audio {

namespace {

struct Names {
    EndpointNames *list;
    bool isWhole = true;
};

// The callbacks are called by C code: an answer that cannot be stored makes the list incomplete instead of being thrown.
template <typename Info>
void add(Names &names, const Info &info) noexcept
try {
    names.list->push_back({endpointIdOf(info.name), info.description == nullptr ? "" : info.description});
} catch (...) {
    names.isWhole = false;
}

void addSink(pa_context *, const pa_sink_info *info, int endOfList, void *user) noexcept
{
    auto &names = *static_cast<Names *>(user);
    if (endOfList == 0)
        add(names, *info);
    else if (endOfList < 0)
        names.isWhole = false;
}

void addSource(pa_context *, const pa_source_info *info, int endOfList, void *user) noexcept
{
    auto &names = *static_cast<Names *>(user);
    if (endOfList < 0)
        names.isWhole = false;
    else if (endOfList == 0 && info->monitor_of_sink == PA_INVALID_INDEX)
        add(names, *info);
}

} // namespace

int readEndpointNames(EndpointNames &list) noexcept
try {
    PulseConnection server(passBound);
    Names names{&list};
    const bool isRead = server.open() && server.finish(pa_context_get_sink_info_list(server.context(), addSink, &names)) &&
                        server.finish(pa_context_get_source_info_list(server.context(), addSource, &names));
    return isRead && names.isWhole ? 0 : 1;
} catch (...) {
    return 1;
}

} // namespace ostra::audio
