// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/turn_watch.h"

#include <QAbstractEventDispatcher>
#include <QThread>

#include <algorithm>
#include <utility>

namespace bench {

namespace {

TurnWatch *&presentWatch()
{
    static TurnWatch *watch = nullptr;
    return watch;
}

} // namespace

TurnWatch::TurnWatch(std::function<Duration()> excluded) : excluded_(std::move(excluded))
{
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, &TurnWatch::wait);
    presentWatch() = this;
    begin();
}

TurnWatch::~TurnWatch() { presentWatch() = nullptr; }

void TurnWatch::reset()
{
    longest_ = {};
    begin();
    busyDepth_ = depth_;
}

void TurnWatch::enter()
{
    ++depth_;
    if (busyDepth_ != 0)
        return;
    begin();
    busyDepth_ = depth_;
}

// What comes after the last event of an inner loop belongs to the outer event.
void TurnWatch::leave()
{
    if (busyDepth_ == 0 || busyDepth_ == depth_) {
        count();
        begin();
        busyDepth_ = 0;
    }
    depth_ = std::max(0, depth_ - 1);
}

void TurnWatch::begin()
{
    start_ = std::chrono::steady_clock::now();
    excludedAtStart_ = excluded_();
}

void TurnWatch::count()
{
    const Duration busy = std::chrono::steady_clock::now() - start_ - (excluded_() - excludedAtStart_);
    longest_ = std::max(longest_, busy);
}

void TurnWatch::wait()
{
    if (busyDepth_ != 0)
        count();
    busyDepth_ = 0;
}

bool WatchedApplication::notify(QObject *receiver, QEvent *event)
{
    TurnWatch *watch = QThread::currentThread() == thread() ? presentWatch() : nullptr;
    if (watch != nullptr)
        watch->enter();
    const bool isTaken = QApplication::notify(receiver, event);
    if (watch != nullptr && watch == presentWatch())
        watch->leave();
    return isTaken;
}

} // namespace bench
