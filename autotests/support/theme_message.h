// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractEventDispatcher>
#include <QAbstractNativeEventFilter>
#include <QEvent>
#include <QObject>

/// The system's message of a changed theme, as Qt hands it to native event filters on Windows.
namespace theme_message {

/// What such a message looks like to a filter: a window handle, then the number.
struct Message {
    void *window = nullptr;
    unsigned int number = 794; // WM_THEMECHANGED
    char rest[64] = {};
};

/// Whether this filter says that it took the message.
inline bool isTakenBy(QAbstractNativeEventFilter &filter)
{
    Message message;
    qintptr result = 0;
    return filter.nativeEventFilter("windows_generic_MSG", &message, &result);
}

/// Gives the message to every native filter of the application; whether one of them says that it took it.
inline bool isTakenBySomeFilter()
{
    Message message;
    qintptr result = 0;
    return QAbstractEventDispatcher::instance()->filterNativeEvent("windows_generic_MSG", &message, &result);
}

/// How often a dialog has got another style.
class RestyleCounter final : public QObject {
public:
    explicit RestyleCounter(QObject &dialog) { dialog.installEventFilter(this); }
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        count += event->type() == QEvent::StyleChange ? 1 : 0;
        return false;
    }
    int count = 0;
};

} // namespace theme_message
