// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/sound_server_identity.h"

#include "audio/endpoints/endpoint_volume.h"
#include "audio/endpoints/pulse_connection_linux.h"

#include <QSysInfo>

namespace host {

// The server's cookie is another one after each start, and would disown the note of a run that a power cut ended.
QString soundServerIdentity()
{
    ostra::audio::PulseConnection server(ostra::audio::passBound);
    if (!server.open())
        return {};
    QString address = QString::fromUtf8(pa_context_get_server(server.context()));
    // The same address with and without the machine's id, by the way in which it was found.
    if (address.startsWith(u'{'))
        address.remove(0, address.indexOf(u'}') + 1);
    return QString::fromLatin1(QSysInfo::machineUniqueId()) + u' ' + address;
}

} // namespace host
