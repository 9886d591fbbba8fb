// SPDX-License-Identifier: Apache-2.0
#include "host/gui/run_keys.h"

#include <QKeyEvent>
#include <QKeySequence>

namespace host {

namespace {

constexpr Qt::KeyboardModifiers modifiers = Qt::ControlModifier | Qt::ShiftModifier;

// -1: none of them.
int eventBit(int key)
{
    const int bit = key - Qt::Key_F1;
    return bit >= 0 && bit < RunKeys::eventCount ? bit : -1;
}

} // namespace

QString RunKeys::runKeys() { return QKeySequence(Qt::CTRL | Qt::Key_R).toString(QKeySequence::NativeText); }

QString RunKeys::stopKeys() { return QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S).toString(QKeySequence::NativeText); }

QString RunKeys::eventKeys(int bit)
{
    return QKeySequence(static_cast<int>(modifiers.toInt()) | (Qt::Key_F1 + bit)).toString(QKeySequence::NativeText);
}

bool RunKeys::isMine(const QKeyEvent &event) const
{
    if (!isRunning_ || (event.modifiers() & ~Qt::KeypadModifier) != modifiers)
        return false;
    return event.key() == Qt::Key_S || (hasEvents_ && eventBit(event.key()) >= 0);
}

void RunKeys::act(const QKeyEvent &event)
{
    if (event.isAutoRepeat())
        return;
    if (event.key() == Qt::Key_S)
        emit stopPressed();
    else
        emit eventPressed(eventBit(event.key()));
}

bool RunKeys::eventFilter(QObject *watched, QEvent *event)
{
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if (!isOverride && event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto &key = static_cast<const QKeyEvent &>(*event);
    if (!isMine(key))
        return QObject::eventFilter(watched, event);
    event->accept(); // an accepted override comes back as a key press
    if (!isOverride)
        act(key);
    return true;
}

} // namespace host
