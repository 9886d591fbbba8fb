// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/guardian/guardian_message.h"

#include <QProcess>
#include <QString>

#include <chrono>
#include <optional>

namespace host {

/// The guardian's process and its pipes, as its host sees them. Every wait blocks and has a bound.
class GuardianProcess {
public:
    GuardianProcess();

    /// False when there is no such program beside this one, or it cannot be started.
    bool start(const QString &stateFolder);
    bool isRunning() const { return process_.state() != QProcess::NotRunning; }

    /// The next message, in order; nothing when the process has ended or `bound` has passed.
    std::optional<GuardianMessage> waitForMessage(std::chrono::milliseconds bound);

    void sendFinish();
    /// Closes the pipe, so that the guardian puts everything back and ends; kills it when it has not ended after `bound`.
    void end(std::chrono::milliseconds bound);

private:
    QProcess process_;
};

} // namespace host
