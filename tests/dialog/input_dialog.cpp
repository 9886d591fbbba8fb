// SPDX-License-Identifier: Apache-2.0
#include "tests/dialog/input_dialog.h"

#include "contract/test_context.h"
#include "utils/guarded.h"
#include "utils/pace.h"

#include <QDebug>
#include <QEventLoop>
#include <QPointer>
#include <QTimer>

#include <chrono>

namespace ostra {

namespace {

constexpr std::chrono::milliseconds watcherInterval{1000};

} // namespace

InputDialog::InputDialog(QWidget * /*parent*/, QObject *eventFilter, Qt::WindowFlags flags)
    : AccessibleDialogBase(nullptr, flags | Qt::WindowStaysOnTopHint)
{
    setAttribute(Qt::WA_DeleteOnClose, false);
    setAttribute(Qt::WA_QuitOnClose, false); // the end of a test must not end a host without another window
    setWindowModality(Qt::WindowModal);
    setModal(true);
    if (eventFilter != nullptr)
        installEventFilter(eventFilter);
    connect(this, &QDialog::finished, this, [this] { hasFinished_ = true; });
}

void InputDialog::raiseOnce()
{
    setWindowFlag(Qt::WindowStaysOnTopHint);
    show();
    hide();
    setWindowFlag(Qt::WindowStaysOnTopHint, false);
}

// Whoever listens to the end may throw, and keeps it from those behind: they are told once more. The loop ends even where that
// fails as well.
template <typename Tell>
void InputDialog::end(int result, Tell tell)
{
    const QPointer<InputDialog> self(this);
    utils::guarded(tell, [&, this] {
        if (self)
            emit finished(result);
    });
    if (self && loop_)
        loop_->quit();
}

void InputDialog::done(int result)
{
    end(result, [=, this] { QDialog::done(result); });
}

void InputDialog::askWatcher()
{
    if (watcher_ == nullptr || hasFinished_)
        return;
    const QPointer<InputDialog> self(this); // the host may run a loop while it is asked, and the dialog end there
    // Only the loop ends: whoever made the dialog closes it.
    if (wantsStop() && self && !hasFinished_)
        end(0, [this] { emit finished(0); });
}

// An exception must not unwind through the event dispatcher; a host that cannot answer any more ends the test.
bool InputDialog::wantsStop() noexcept
{
    const QPointer<InputDialog> self(this);
    try {
        return watcher_->continueOnOutcome();
    } catch (...) {
        if (self && !hasFinished_) // an end that was there before the failure counts
            hasWatcherFailed_ = true;
        return true;
    }
}

int InputDialog::runLoop()
{
    const QPointer<InputDialog> self(this);
    int outcome = result();
    QEventLoop loop;
    // Taken here, because nothing of a dialog can be read once it is gone.
    connect(this, &QDialog::finished, &loop, [this, &outcome] { outcome = result(); });
    connect(this, &QDialog::finished, &loop, &QEventLoop::quit);
    connect(this, &QObject::destroyed, &loop, &QEventLoop::quit);
    loop_ = &loop;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, &InputDialog::askWatcher);
    qDebug().nospace() << "Before show: " << result();
    if (!hasFinished_)
        show();
    qDebug().nospace() << "Before loop: " << result();
    timer.start(utils::paced(watcherInterval));
    if (!hasFinished_)
        loop.exec();
    if (self)
        outcome = result();
    qDebug().nospace() << "After the event loop: " << outcome;
    return outcome;
}

int InputDialog::exec()
{
    const QPointer<InputDialog> self(this);
    const bool deletesOnClose = testAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_DeleteOnClose, false); // a close inside the loop would delete the object that runs it
    const int outcome = runLoop();
    if (self)
        setAttribute(Qt::WA_DeleteOnClose, deletesOnClose);
    return outcome;
}

} // namespace ostra
