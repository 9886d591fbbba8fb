// SPDX-License-Identifier: Apache-2.0
#include "views/timed_job.h"

#include "audio/abandoned_workers.h"
#include "audio/worker_status.h"
#include "utils/guarded.h"
#include "utils/pace.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLCDNumber>
#include <QString>
#include <QThread>
#include <QWidget>

#include <algorithm>

namespace ostra {

namespace {

constexpr std::chrono::seconds tickInterval{1};

/// Deletes its worker while it still runs. The worker closes its device then, which may take for ever, and a thread that has
/// begun to finish is waited for by its destructor, on the GUI thread.
class JobThread final : public QThread {
protected:
    void run() override
    {
        exec();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

} // namespace

TimedJob::TimedJob(QWidget &page, QLCDNumber &display) : page_(page), display_(display), stopFlag_(audio::makeStopFlag())
{
    QObject::connect(&timer_, SIGNAL(timeout()), &page, SLOT(OnTimerTick()));
    showSeconds(0);
}

TimedJob::~TimedJob() { stop(); }

const audio::StopFlag &TimedJob::begin()
{
    letGo(); // of one that has reported and still closes its device
    isBusy_ = true;
    wasCancelledWhileBusy_ = false;
    elapsedSeconds_ = 0;
    stopFlag_ = audio::makeStopFlag();
    return stopFlag_;
}

void TimedJob::wire(QObject &worker, const char *jobSlot, QThread &thread)
{
    QObject::connect(&thread, SIGNAL(started()), &worker, jobSlot);
    // Directly: a worker that was left to itself must end without anybody's event loop. And before the page is told, for which
    // there may be no memory.
    QObject::connect(&worker, SIGNAL(SendResultStatus(int)), &thread, SLOT(quit()), Qt::DirectConnection);
    QObject::connect(&worker, SIGNAL(SendResultStatus(int)), &worker, SLOT(deleteLater()));
    QObject::connect(&worker, SIGNAL(SendResultStatus(int)), &page_, SLOT(set_result_status(int)));
    QObject::connect(&thread, SIGNAL(finished()), &thread, SLOT(deleteLater()));
}

void TimedJob::start(std::unique_ptr<QObject> worker, const char *jobSlot)
{
    auto thread = std::make_unique<JobThread>(); // no parent: it may have to outlive the page
    worker->moveToThread(thread.get());
    wire(*worker, jobSlot, *thread);
    timer_.start(utils::paced(tickInterval)); // first, because nothing may throw once the thread runs
    thread->start(QThread::InheritPriority);
    if (!thread->isRunning() && !thread->isFinished()) {
        report(audio::worker_status::failed); // the system has no thread left
        return;
    }
    static_cast<void>(worker.release());
    thread_ = thread.release();
}

void TimedJob::report(int status) noexcept
{
    status_ = status;
    isBusy_ = false;
}

TimedJob::Turn TimedJob::ending() const noexcept
{
    if (status_ == audio::worker_status::disconnected)
        return Turn::disconnected;
    // A worker that the user stopped reports success as well.
    if (wasCancelledWhileBusy_)
        return Turn::cancelled;
    if (status_ == audio::worker_status::finished)
        return Turn::finished;
    return *stopFlag_ ? Turn::failed : Turn::cancelled;
}

TimedJob::Turn TimedJob::tick(int limitSeconds)
{
    elapsedSeconds_ += static_cast<int>(tickInterval.count());
    if (isBusy_) {
        if (elapsedSeconds_ > limitSeconds)
            stopFlag_->exchange(false);
        return Turn::goesOn;
    }
    timer_.stop();
    return ending();
}

void TimedJob::showSeconds(int limitSeconds)
{
    const QString text = QStringLiteral("00:0") + QString::number(std::min(limitSeconds, elapsedSeconds_));
    display_.display(text);
    display_.setAccessibleName(text); // the widget tells a screen reader its number, and this text is none
    display_.repaint();
}

bool TimedJob::cancel() noexcept
{
    stopFlag_->exchange(false);
    if (!timer_.isActive())
        return false;
    wasCancelledWhileBusy_ = wasCancelledWhileBusy_ || isBusy_;
    return true;
}

void TimedJob::requestStop() noexcept
{
    timer_.stop();
    stopFlag_->exchange(false);
}

void TimedJob::stop(QDeadlineTimer deadline)
{
    requestStop();
    const QPointer<QThread> thread = thread_;
    if (thread.isNull())
        return;
    thread->quit();
    if (!thread->wait(deadline))
        return letGo();
    thread_.clear();
    delete thread.data();
}

void TimedJob::letGo()
{
    if (thread_.isNull())
        return;
    thread_.clear();
    audio::abandonWorker(stopFlag_);
    // Without memory for another flag the worker counts for as long as this page lives.
    utils::guarded([this] { stopFlag_ = std::make_shared<std::atomic<bool>>(false); });
}

} // namespace ostra
