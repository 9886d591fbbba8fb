// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/turn_watch.h"

#include <QAbstractEventDispatcher>

#include <algorithm>
#include <utility>

namespace bench {

TurnWatch::TurnWatch(std::function<Duration()> excluded) : excluded_(std::move(excluded))
{
    QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, &TurnWatch::begin);
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &TurnWatch::end);
    reset();
}

void TurnWatch::reset()
{
    longest_ = {};
    begin();
}

void TurnWatch::begin()
{
    start_ = std::chrono::steady_clock::now();
    excludedAtStart_ = excluded_();
}

void TurnWatch::end()
{
    const Duration busy = std::chrono::steady_clock::now() - start_ - (excluded_() - excludedAtStart_);
    longest_ = std::max(longest_, busy);
    begin();
}

} // namespace bench
