// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/cli/exit_code.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

namespace host {

class Console;

/// How one start of the graphical host ended.
struct HostEnd {
    ExitCode code = ExitCode::notCompleted;
    /// Why, in the host's own English words (`reasonWords`), when the graphical host left no report of it; empty otherwise.
    QString reason;
};

struct HostLimits {
    /// The graphical host ends its runs after five minutes, but not when the sound library holds its thread. Before a run come
    /// up to 35 s for the listener and a check of the channels, after it up to 20 s for the volumes.
    std::chrono::milliseconds run = std::chrono::minutes(8);
    /// It gives back the volumes before it ends.
    std::chrono::milliseconds end = std::chrono::seconds(20);
};

/// The longest that a start of the graphical host can take: being asked to end, and being ended.
constexpr std::chrono::milliseconds longestStart(const HostLimits &limits) { return limits.run + 2 * limits.end; }

/// Runs the graphical host with those arguments, passing its output through, and believes only a verdict that it wrote down
/// last: a process can end with the code of one without having come to it. A reason is complained of.
HostEnd performHost(const QString &program, const QStringList &arguments, Console &console, const HostLimits &limits = {});

/// Ends by a signal that this process caught; nothing while there was none.
std::optional<ExitCode> interruption();

} // namespace host
