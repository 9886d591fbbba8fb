// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/operator/heard_log.h"

#include <QPointer>
#include <QString>
#include <QWidget>

namespace host {

/// A press is repeated when it had no effect for that long, in milliseconds.
constexpr qint64 pressAgainMs = 2'000;

/// How a dialog is left that cannot be worked to its end: by its close button, at once or, where it may end by itself, a little
/// later. GUI thread only.
class DialogExit {
public:
    /// \param closeButton object name of the button that closes the dialog
    DialogExit(QWidget *dialog, const char *closeButton) : dialog_(dialog), closeButton_(closeButton) {}

    /// The dialog gets some seconds to end by itself: what took the listener away may have taken its device as well, and only
    /// the dialog can tell.
    void awaitItsOwnEnd(const QString &reason);
    /// The wait is over: the dialog goes on. The reason stays until there is another.
    void awaitNoLonger();
    /// Presses the close button.
    void close(const QString &reason);

    /// Whether either of them has begun.
    bool hasBegun() const { return stage_ != Stage::none; }
    bool isClosing() const { return stage_ == Stage::closing; }
    /// Does what is due while the dialog is still there.
    void advance();

    /// Why the dialog is left; empty before.
    const QString &reason() const { return reason_; }

private:
    enum class Stage { none, awaited, closing };

    void enter(Stage stage);
    void press();

    QPointer<QWidget> dialog_;
    const char *closeButton_;
    Stage stage_ = Stage::none;
    qint64 sinceMs_ = 0;
    QString reason_;
};

/// The shown widget of that name: the pages of a dialog share names, and only one of them is shown. Null where there is none.
QWidget *findShown(const QWidget &dialog, const char *name);

} // namespace host
