// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

namespace host {

/// Leaves the host's terminal, session and signals, so that what ends the host does not end this process too. Before any thread
/// is started.
void detachFromHost();

struct GuardianInput {
    enum class Kind {
        bytes,      ///< something came through the pipe
        ended,      ///< the pipe's other side is gone
        terminated, ///< the system asks this process to end
    };
    Kind kind = Kind::ended;
    QByteArray bytes;
};

/// Waits, without a bound, for what comes next on the standard input. An input that cannot be read has ended.
GuardianInput waitForInput();

} // namespace host
