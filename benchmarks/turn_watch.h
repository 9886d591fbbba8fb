// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QApplication>
#include <QObject>

#include <chrono>
#include <functional>

namespace bench {

/// The longest time that the thread of the events was busy at a stretch: from the start of an event's handling to its end, or
/// to where a loop inside it comes to wait. `excluded` tells how much time was spent so far on what does not count. The
/// systems' dispatchers say differently often that they woke up; so the events themselves are watched, by WatchedApplication.
class TurnWatch : public QObject {
public:
    using Duration = std::chrono::steady_clock::duration;

    explicit TurnWatch(std::function<Duration()> excluded);
    ~TurnWatch() override;

    /// In seconds, since the last reset.
    double longest() const { return std::chrono::duration<double>(longest_).count(); }
    /// The handling of the present event begins now.
    void reset();

    void enter();
    void leave();

private:
    void begin();
    void count();
    void wait();

    std::function<Duration()> excluded_;
    std::chrono::steady_clock::time_point start_;
    Duration excludedAtStart_{};
    Duration longest_{};
    int depth_ = 0;     // events inside events
    int busyDepth_ = 0; // of the event with which the stretch began; 0 between two stretches
};

/// Tells the watch, of which there may be one at a time, of every event.
class WatchedApplication final : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override;
};

} // namespace bench
