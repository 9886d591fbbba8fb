// SPDX-License-Identifier: Apache-2.0
#include "autotests/e2e/loss/heartbeat.h"

#include "autotests/e2e/loss/fault.h"

#include <algorithm>
#include <chrono>

Heartbeat::Heartbeat() : lastMs_(nowMs())
{
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
        longestSilenceMs_ = std::max(longestSilenceMs_, nowMs() - lastMs_);
        lastMs_ = nowMs();
    });
    timer_.start(std::chrono::milliseconds(20));
}
