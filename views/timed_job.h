// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/stop_flag.h"

#include <QDeadlineTimer>
#include <QPointer>
#include <QTimer>

#include <chrono>
#include <memory>

class QLCDNumber;
class QObject;
class QThread;
class QWidget;

namespace ostra {

/// How long a worker may take to end after its flag was cleared: half a second until it looks at the flag, then the closing of
/// its device, which took 0.3 s at most with sound servers that answer.
inline constexpr std::chrono::seconds workerEndLimit{3};

/// A worker on a thread of its own and the seconds that the user sees meanwhile: what the page that records and the page that
/// plays have in common. The page keeps its slots and signals and asks here what a tick means. GUI thread only.
class TimedJob {
public:
    /// What a page has to do after a tick.
    enum class Turn {
        goesOn,       ///< nothing: the worker is still at it
        finished,     ///< the worker did its job
        disconnected, ///< its device vanished
        cancelled,    ///< the user did not want it
        failed        ///< it stopped by itself
    };

    /// `page` must have the slots `set_result_status(int)` and `OnTimerTick()`; it owns this object and `display`.
    TimedJob(QWidget &page, QLCDNumber &display);
    /// Stops.
    ~TimedJob();
    TimedJob(const TimedJob &) = delete;
    TimedJob &operator=(const TimedJob &) = delete;

    /// Begins a job: busy from now on, no second passed. Answers its own stop flag, for the worker that `start` is given.
    const audio::StopFlag &begin();
    /// Runs `jobSlot`, as SLOT() gives it, of `worker` on a new thread. The worker reports once by `SendResultStatus(int)`;
    /// then it closes its device, and it and the thread delete themselves.
    void start(std::unique_ptr<QObject> worker, const char *jobSlot);
    /// Keeps what the worker reported; the next tick acts on it.
    void report(int status) noexcept;
    /// Another second. A job that has lasted longer than `limitSeconds` is told to stop.
    Turn tick(int limitSeconds);
    /// Shows the seconds passed, `limitSeconds` at most, "00:0" and one digit.
    void showSeconds(int limitSeconds);
    /// Tells the worker to stop. False when no tick will follow that could tell how it ended.
    bool cancel() noexcept;
    /// Tells the worker to stop, and the ticks. Does not wait.
    void requestStop() noexcept;
    /// The same, and waits for the end of the thread. At `deadline` the worker is left to itself, with all that it uses.
    void stop(QDeadlineTimer deadline = QDeadlineTimer(workerEndLimit));

    bool isBusy() const noexcept { return isBusy_; }

private:
    void wire(QObject &worker, const char *jobSlot, QThread &thread);
    void letGo();
    Turn ending() const noexcept;

    QWidget &page_;
    QLCDNumber &display_;
    QTimer timer_;
    audio::StopFlag stopFlag_;
    QPointer<QThread> thread_;
    int elapsedSeconds_ = 0;
    int status_ = 1;
    bool isBusy_ = false;
    bool wasCancelledWhileBusy_ = false;
};

/// Emits the signal of `page` for a job that did not do what it was for; nothing for the other turns.
template <typename Page>
void announceFailure(Page &page, TimedJob::Turn turn)
{
    if (turn == TimedJob::Turn::disconnected)
        emit page.DisconnectedDevice();
    else if (turn == TimedJob::Turn::cancelled)
        emit page.CancelTest();
    else if (turn == TimedJob::Turn::failed)
        emit page.AbortTest();
}

} // namespace ostra
