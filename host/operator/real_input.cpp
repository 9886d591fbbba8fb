// SPDX-License-Identifier: Apache-2.0
#include "host/operator/real_input.h"

#include <QApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace host {

namespace {

// Events for a window pass by the platform's gate that holds back input for what a modal window blocks.
QWindow *reachableWindow(const QWidget *widget)
{
    const QWidget *modal = QApplication::activeModalWidget();
    const bool isBlocked = modal != nullptr && modal != widget->window();
    return isBlocked || !widget->isVisible() ? nullptr : widget->window()->windowHandle();
}

// A person brings a window to the front before working it. A window of another program is not known here.
void uncover(QWidget *window, QPoint position)
{
    const QWindow *top = QGuiApplication::topLevelAt(window->mapToGlobal(position));
    if (top != nullptr && top != window->windowHandle())
        window->raise();
}

void postMouse(QWindow *window, QEvent::Type type, QPoint position, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QCoreApplication::postEvent(
        window, new QMouseEvent(type, position, position, window->mapToGlobal(position), button, buttons, Qt::NoModifier));
}

} // namespace

bool clickOn(QWidget *target)
{
    QWindow *window = target == nullptr ? nullptr : reachableWindow(target);
    if (window == nullptr || !target->isEnabled())
        return false;
    const QPoint position = target->mapTo(target->window(), target->rect().center());
    if (target->window()->childAt(position) != target)
        return false;
    uncover(target->window(), position);
    postMouse(window, QEvent::MouseMove, position, Qt::NoButton, Qt::NoButton);
    postMouse(window, QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton);
    postMouse(window, QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton);
    return true;
}

bool pressDigitKey(QWidget *widget, int digit)
{
    QWindow *window = widget == nullptr ? nullptr : reachableWindow(widget);
    if (window == nullptr)
        return false;
    const int key = Qt::Key_0 + digit;
    const QString text = QString::number(digit);
    QCoreApplication::postEvent(window, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, text));
    QCoreApplication::postEvent(window, new QKeyEvent(QEvent::KeyRelease, key, Qt::NoModifier, text));
    return true;
}

} // namespace host
