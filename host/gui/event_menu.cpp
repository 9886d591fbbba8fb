// SPDX-License-Identifier: Apache-2.0
#include "host/gui/event_menu.h"

#include "contract/event_mask.h"
#include "host/gui/key_text.h"
#include "host/gui/run_keys.h"

#include <QAction>
#include <QMenu>

#include <cstdint>

namespace host {

namespace {

QString entryText(int bit)
{
    const bool cancels = (ostra::cancelingEventMask >> static_cast<unsigned>(bit) & 1U) != 0;
    const QString text = hostText(cancels ? "EVENT_CANCELS" : "EVENT_DOES_NOT_CANCEL");
    return text.arg(QStringLiteral("&%1").arg(bit));
}

} // namespace

void fillEventMenu(QMenu &menu, QObject *receiver, const std::function<void(int)> &raise)
{
    for (int bit = 0; bit < RunKeys::eventCount; ++bit) {
        QAction *entry = menu.addAction(QString());
        entry->setObjectName(QStringLiteral("host_event_%1").arg(bit));
        entry->setShortcut(RunKeys::eventKeys(bit));
        entry->setShortcutContext(Qt::WidgetShortcut); // for the eye and the ear: RunKeys takes them for the whole program
        QObject::connect(entry, &QAction::triggered, receiver, [raise, bit] { raise(bit); });
    }
    retranslateEventMenu(menu);
}

void retranslateEventMenu(QMenu &menu)
{
    const QList<QAction *> entries = menu.actions();
    for (int bit = 0; bit < entries.size(); ++bit)
        entries[bit]->setText(entryText(bit));
}

} // namespace host
