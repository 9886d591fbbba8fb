// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QApplication>
#include <QByteArray>
#include <QByteArrayList>
#include <QEvent>
#include <QImage>
#include <QLCDNumber>
#include <QMetaMethod>
#include <QMetaObject>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

/// What tests of the microphone test's views look at.
namespace page_probe {

/// The signals and slots that the class itself declares, in order: "signal NextWidget()".
inline QByteArrayList ownMethods(const QMetaObject &type)
{
    QByteArrayList methods;
    for (int index = type.methodOffset(); index < type.methodCount(); ++index) {
        const QMetaMethod method = type.method(index);
        methods << (method.methodType() == QMetaMethod::Signal ? "signal " : "slot ") + method.methodSignature();
    }
    return methods;
}

/// The names below `parent`, widgets and layouts, children after their parent, each with its class: "name QLabel". Objects that
/// Qt adds itself have names beginning with "qt_" and are left out, as are those without a name.
inline QStringList namedTree(const QObject &parent)
{
    QStringList names;
    for (const QObject *child : parent.children()) {
        const QString name = child->objectName();
        if (!name.isEmpty() && !name.startsWith(QLatin1String("qt_")))
            names << name + QLatin1Char(' ') + QLatin1String(child->metaObject()->className());
        names << namedTree(*child);
    }
    return names;
}

template <typename Widget>
Widget *named(const QObject &parent, const char *name)
{
    return parent.findChild<Widget *>(QLatin1String(name));
}

/// Sends `event` as the window system does.
inline void sendSpontaneously(QObject &receiver, QEvent &event)
{
    QSpontaneKeyEvent::setSpontaneous(&event); // sendEvent() would take that back
    qApp->notify(&receiver, &event);
}

/// Whether `lcd` shows exactly `text`: its number cannot tell, "00:05" is none.
inline bool shows(QLCDNumber &lcd, const QString &text)
{
    const QImage shown = lcd.grab().toImage();
    const QString before = lcd.accessibleName();
    lcd.display(text);
    const bool isSame = lcd.grab().toImage() == shown;
    lcd.display(before);
    return isSame && before == text;
}

} // namespace page_probe
