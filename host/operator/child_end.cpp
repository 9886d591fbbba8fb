// SPDX-License-Identifier: Apache-2.0
#include "host/operator/child_end.h"

#include <QProcess>

namespace host {

namespace {

constexpr int endLimitMs = 3'000;

} // namespace

void endByClosedInput(QProcess &process)
{
    if (process.state() == QProcess::NotRunning)
        return;
    process.closeWriteChannel();
    if (process.waitForFinished(endLimitMs))
        return;
    process.kill();
    process.waitForFinished(endLimitMs);
}

} // namespace host
