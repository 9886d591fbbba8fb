// SPDX-License-Identifier: Apache-2.0
#include "tests/audio_widget_wrapper.h"

#include "contract/test_context.h"
#include "utils/guarded.h"
#include "views/interaction_dialog.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <chrono>
#include <thread>
#include <utility>

namespace ostra {

namespace {

constexpr std::chrono::milliseconds releaseInterval{100};
constexpr std::chrono::milliseconds lookInterval{10};

// Runs `action` on the thread of `object` before it returns.
template <typename Action>
void runInThreadOf(QObject &object, Action action)
{
    if (object.thread() == QThread::currentThread())
        action();
    else
        QMetaObject::invokeMethod(&object, action, Qt::BlockingQueuedConnection);
}

// Without memory for a call to the dialog's thread: its timer deletes both. A dialog that goes by itself leaves the wrapper. An
// application that ends first runs no timer any more, and both are left behind: here is the wrong thread for a dialog.
void waitForTimer(AudioWidgetWrapper *wrapper, DialogLink &link)
{
    link.released = wrapper;
    while (link.hasDialog && QCoreApplication::instance() != nullptr)
        std::this_thread::sleep_for(lookInterval);
    if (!link.hasDialog)
        delete link.released.exchange(nullptr);
}

// The dialog belongs to the application's thread and asks the host's objects until it is destroyed: so it is not left to
// itself when a test that ran on another thread is over.
void deleteWithDialog(AudioWidgetWrapper *wrapper) noexcept
{
    QCoreApplication *application = QCoreApplication::instance();
    const std::shared_ptr<DialogLink> link = wrapper->link();
    if (!link->hasDialog || application == nullptr)
        delete wrapper;
    else
        utils::guarded([=] { runInThreadOf(*application, [wrapper] { delete wrapper; }); },
                       [&] { waitForTimer(wrapper, *link); });
}

} // namespace

AudioWidgetWrapper::AudioWidgetWrapper(QString outputDeviceName, TestContext &context)
    : outputDeviceName_(std::move(outputDeviceName)), context_(context), outcome_(dialog_result::cancelled)
{
    if (const QCoreApplication *application = QCoreApplication::instance())
        moveToThread(application->thread());
}

AudioWidgetWrapper::~AudioWidgetWrapper()
{
    if (hasDialog()) {             // one that already goes is not touched
        dialog_->disconnect(this); // what it tells while it goes reaches nobody
        delete dialog_;
    }
}

void AudioWidgetWrapper::makeDialog(QWidget *parent, QObject *argument)
{
    dialog_ = new InteractionDialog(outputDeviceName_, parent, argument, context_.events());
    linkDialog();
    dialog_->setCancellationWatcher(&context_);
    dialog_->setResult(dialog_result::none);
    dialog_->setAttribute(Qt::WA_DeleteOnClose);
    hasFinished_ = false; // a host may run the wrapper once more
    isDeviceLost_ = false;
    hasInternalError_ = false;
}

// By way of the dialog alone: once it is gone, the thread of the run may delete this object at any moment.
void AudioWidgetWrapper::linkDialog()
{
    InteractionDialog *dialog = dialog_;
    connect(dialog, &QObject::destroyed, dialog, [link = link_] { link->hasDialog = false; });
    auto *timer = new QTimer(dialog);
    connect(timer, &QTimer::timeout, dialog, [link = link_] { delete link->released.exchange(nullptr); });
    timer->start(releaseInterval);
    link_->hasDialog = true;
}

void AudioWidgetWrapper::watchDialog()
{
    InteractionDialog *dialog = dialog_;
    // Kept at once: the dialog may be gone when its loop returns.
    connect(dialog, &QDialog::finished, this, [this, dialog] { keepEnd(*dialog); });
    connect(this, &AudioWidgetWrapper::CloseDialog, dialog, [dialog] {
        if (dialog->result() == dialog_result::none)
            dialog->close();
    });
}

void AudioWidgetWrapper::keepEnd(const InteractionDialog &dialog)
{
    hasFinished_ = dialog.hasFinished() && !dialog.hasWatcherFailed();
    isDeviceLost_ = dialog.isDeviceDisconnected();
    hasInternalError_ = dialog.isAborted();
}

int AudioWidgetWrapper::runDialog(QWidget *parent, QObject *argument)
{
    delete dialog_;
    makeDialog(parent, argument);
    watchDialog();
    dialog_->raiseOnce();
    const int result = dialog_->exec();
    if (dialog_)
        keepEnd(*dialog_); // a listener that throws may have kept the end from being told
    // Result 0 of a dialog that never finished, or that a failing host ended, would be taken for a pass.
    const int outcome = hasFinished_ ? result : dialog_result::cancelled;
    endDialog();
    return outcome;
}

void AudioWidgetWrapper::endDialog()
{
    if (dialog_ && !hasFinished_)
        dialog_->done(dialog_result::cancelled);
    // The loop does not let a dialog delete itself. One that the host's watcher stopped is still open, until `closeDialog`.
    if (dialog_ && dialog_->isHidden())
        dialog_->deleteLater();
}

int AudioWidgetWrapper::exec(QWidget *parent, QObject *argument)
{
    try {
        outcome_ = runDialog(parent, argument);
    } catch (...) { // out of memory; the host's frames are between here and the test
        hasInternalError_ = true;
        outcome_ = dialog_result::closed;
        delete dialog_; // nobody else may know of it yet
    }
    return outcome_;
}

void AudioWidgetWrapper::closeDialog()
{
    if (hasDialog())
        utils::guarded([this] { runInThreadOf(*this, [this] { emit CloseDialog(); }); });
}

std::shared_ptr<AudioWidgetWrapper> makeAudioWidgetWrapper(QString outputDeviceName, TestContext &context)
{
    return {new AudioWidgetWrapper(std::move(outputDeviceName), context), &deleteWithDialog};
}

} // namespace ostra
