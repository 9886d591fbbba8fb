// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTimer>

/// How long the thread that it lives on did not turn its event loop. Starts with its construction.
class Heartbeat {
public:
    Heartbeat();

    long long longestSilenceMs() const { return longestSilenceMs_; }
    void stop() { timer_.stop(); }

private:
    QTimer timer_;
    long long lastMs_;
    long long longestSilenceMs_ = 0;
};
