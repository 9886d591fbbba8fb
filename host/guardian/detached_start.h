// SPDX-License-Identifier: Apache-2.0
#pragma once

class QProcess;

namespace host {

/// Lets `process`, when it is started, belong to no console or job that ends together with this process, where that has to be
/// said before the start.
void prepareDetachedStart(QProcess &process);

} // namespace host
