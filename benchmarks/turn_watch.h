// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <chrono>
#include <functional>

namespace bench {

/// The longest time for which the event loop of this thread did not come to wait for events. `excluded` tells how much time was
/// spent so far on what does not count.
class TurnWatch : public QObject {
public:
    using Duration = std::chrono::steady_clock::duration;

    explicit TurnWatch(std::function<Duration()> excluded);

    /// In seconds, since the last reset.
    double longest() const { return std::chrono::duration<double>(longest_).count(); }
    /// The turn that is going on begins now.
    void reset();

private:
    void begin();
    void end();

    std::function<Duration()> excluded_;
    std::chrono::steady_clock::time_point start_;
    Duration excludedAtStart_{};
    Duration longest_{};
};

} // namespace bench
