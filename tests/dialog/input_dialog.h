// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "utils/accessible_dialog_base.h"

#include <QEventLoop>
#include <QPointer>
#include <QString>

namespace ostra {

class TestContext;

/// Base of the test dialogs and the modal loop that they run in. GUI thread only.
class InputDialog : public utils::accessibility::AccessibleDialogBase {
    Q_OBJECT

public:
    /// `parent` is deliberately not used: the dialog is a top-level window of its own. `eventFilter` is installed on the dialog
    /// and may be null. Both stay the caller's.
    /// `flags` as those of a QDialog; the dialog stays on top in any case.
    InputDialog(QWidget *parent, QObject *eventFilter, Qt::WindowFlags flags = {});

    const QString &title() const noexcept { return title_; }
    void setTitle(const QString &title) { title_ = title; }

    /// Who is asked once a second whether the test has to stop; null asks nobody. Must outlive `exec`.
    void setCancellationWatcher(TestContext *watcher) noexcept { watcher_ = watcher; }

    /// Shows the dialog and runs a local event loop until it finishes, is destroyed, or the watcher wants the test to stop, and
    /// returns the dialog's result. A stop by the watcher leaves the dialog visible with the result that it has. A dialog that
    /// finished before is neither shown nor run: its result is returned at once. The dialog is never deleted in here, also with
    /// Qt::WA_DeleteOnClose, which is back in force afterwards. A watcher that throws counts as one that wants to stop.
    int exec() override;

    /// As QDialog::done. A listener of the end that throws is told once more, as are those behind it; nothing comes out of
    /// here, and the dialog has ended with `result` in any case.
    void done(int result) override;

    /// Whether the dialog has finished, by itself or by its watcher.
    bool hasFinished() const noexcept { return hasFinished_; }

    /// Whether it was ended because its watcher threw: the result it then has is nobody's answer.
    bool hasWatcherFailed() const noexcept { return hasWatcherFailed_; }

    /// Brings the window to the front: shown above all others and hidden again at once.
    void raiseOnce();

private:
    void askWatcher();
    bool wantsStop() noexcept;
    int runLoop();
    template <typename Tell>
    void end(int result, Tell tell);

    QString title_;
    TestContext *watcher_ = nullptr;
    QPointer<QEventLoop> loop_; ///< while it runs
    bool hasFinished_ = false;
    bool hasWatcherFailed_ = false;
};

} // namespace ostra
