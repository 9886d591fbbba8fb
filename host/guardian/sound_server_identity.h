// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace host {

/// Which sound server's endpoints these are: the same after a restart of the server or the machine, another one for another
/// server, so that equal names of endpoints on two servers are not taken for one endpoint.
///
/// Linux: the machine's id and the address of the connection; empty when the server does not answer, 2 s at most. Windows:
/// empty, since the system's ids of endpoints differ from machine to machine.
QString soundServerIdentity();

} // namespace host
