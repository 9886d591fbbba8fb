// SPDX-License-Identifier: Apache-2.0
#include "host/operator/dialog_exit.h"

#include "host/operator/real_input.h"

#include <algorithm>

namespace host {

namespace {

/// A dialog ends some two seconds after it lost its device.
constexpr qint64 ownEndLimitMs = 5'000;

} // namespace

void DialogExit::awaitItsOwnEnd(const QString &reason)
{
    reason_ = reason;
    enter(Stage::awaited);
}

void DialogExit::awaitNoLonger()
{
    if (stage_ == Stage::awaited)
        enter(Stage::none);
}

void DialogExit::close(const QString &reason)
{
    reason_ = reason;
    enter(Stage::closing);
    press();
}

void DialogExit::advance()
{
    const qint64 passedMs = steadyNowMs() - sinceMs_;
    if (stage_ == Stage::awaited && passedMs > ownEndLimitMs)
        close(reason_);
    else if (stage_ == Stage::closing && passedMs > pressAgainMs)
        press();
}

void DialogExit::enter(Stage stage)
{
    stage_ = stage;
    sinceMs_ = steadyNowMs();
}

void DialogExit::press()
{
    sinceMs_ = steadyNowMs();
    if (dialog_)
        clickOn(findShown(*dialog_, closeButton_));
}

QWidget *findShown(const QWidget &dialog, const char *name)
{
    const QList<QWidget *> widgets = dialog.findChildren<QWidget *>(QLatin1String(name));
    const auto shown = std::find_if(widgets.begin(), widgets.end(), [](const QWidget *widget) { return widget->isVisible(); });
    return shown == widgets.end() ? nullptr : *shown;
}

} // namespace host
