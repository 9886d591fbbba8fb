// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/abstract_widget_wrapper.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <atomic>
#include <cstdint>
#include <memory>

namespace ostra {

class AudioWidgetWrapper;
class InteractionDialog;
class TestContext;

/// What the thread of the run and the dialog know of each other. Outlives both, so that neither looks at what the other
/// deletes.
struct DialogLink {
    std::atomic<bool> hasDialog = false;
    /// One that the run is done with and has no memory to say so: its dialog looks for it.
    std::atomic<AudioWidgetWrapper *> released = nullptr;
};

/// The microphone dialog as the host runs it, and what came of it. Lives in the application's thread, whatever thread makes
/// it; `exec` is called there, everything else by the thread that runs the test, before or after `exec`.
class AudioWidgetWrapper final : public QObject, public AbstractWidgetWrapper {
    Q_OBJECT

public:
    /// `outputDeviceName` is the device that plays the recording. `context` is asked whether to stop while the dialog runs and
    /// must outlive this object.
    AudioWidgetWrapper(QString outputDeviceName, TestContext &context);
    /// Destroys a dialog that is still there.
    ~AudioWidgetWrapper() override;

    /// Shows the dialog, brought to the front once, and answers its result. A dialog that did not finish, because the
    /// application ended its loops, counts as cancelled. Throws nothing.
    int exec(QWidget *parent, QObject *argument) override;

    /// Closes the dialog if there is one and its result is still 0. When it returns that is done, from any thread; the
    /// application's thread must be running its loop if it is another one.
    void closeDialog();

    /// What `exec` answered; "cancelled" while it was not called.
    std::int32_t outcome() const noexcept { return outcome_; }
    /// Whether a device disappeared during the dialog.
    bool deviceLost() const noexcept { return isDeviceLost_; }
    /// Whether recording or playback failed.
    bool internalError() const noexcept { return hasInternalError_; }

    /// Whether a dialog exists; from any thread.
    bool hasDialog() const noexcept { return link_->hasDialog; }
    /// Never null; from any thread.
    std::shared_ptr<DialogLink> link() const noexcept { return link_; }

signals:
    void CloseDialog();

private:
    int runDialog(QWidget *parent, QObject *argument);
    void makeDialog(QWidget *parent, QObject *argument);
    void linkDialog();
    void watchDialog();
    void keepEnd(const InteractionDialog &dialog);
    void endDialog();

    QString outputDeviceName_;
    TestContext &context_;
    QPointer<InteractionDialog> dialog_;
    std::shared_ptr<DialogLink> link_ = std::make_shared<DialogLink>();
    std::int32_t outcome_;
    bool hasFinished_ = false;
    bool isDeviceLost_ = false;
    bool hasInternalError_ = false;
};

/// A wrapper whose last owner may let go of it on any thread: its dialog is gone when that returns.
std::shared_ptr<AudioWidgetWrapper> makeAudioWidgetWrapper(QString outputDeviceName, TestContext &context);

} // namespace ostra
