// SPDX-License-Identifier: Apache-2.0
#include "host/gui/microphone_watch.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace host {

namespace {

constexpr QLatin1StringView choiceName("microphone_test_radio_button");
constexpr QLatin1StringView recordName("microphone_test_record_button");

QString chosenIn(const QWidget &dialog)
{
    const auto choices = dialog.findChildren<QAbstractButton *>(choiceName);
    for (const QAbstractButton *choice : choices) {
        if (choice->isChecked())
            return choice->text();
    }
    return {};
}

} // namespace

MicrophoneWatch::MicrophoneWatch(QObject *parent) : QObject(parent) { QCoreApplication::instance()->installEventFilter(this); }

bool MicrophoneWatch::eventFilter(QObject *watched, QEvent *event)
{
    const auto *widget = event->type() == QEvent::Show ? qobject_cast<QWidget *>(watched) : nullptr;
    if (widget != nullptr && widget->objectName() == recordName)
        name_ = chosenIn(*widget->window());
    return QObject::eventFilter(watched, event);
}

} // namespace host
