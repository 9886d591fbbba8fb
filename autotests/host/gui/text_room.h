// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAction>
#include <QGroupBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QRect>
#include <QScreen>
#include <QString>
#include <QStringList>
#include <QStyle>
#include <QStyleOptionGroupBox>
#include <QStyleOptionHeader>
#include <QStyleOptionTab>
#include <QTabBar>
#include <QTableView>
#include <QWidget>

#include <algorithm>

/// Texts that no label or button shows, measured against the room that their widget gives them: titles of tabs and boxes,
/// column headers, menus.
namespace text_room {

inline int widthOf(const QWidget &widget, const QString &text)
{
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

inline QString complaint(const QString &kind, const QString &text, int room, int needed)
{
    return QStringLiteral("%1 \"%2\": %3 of %4").arg(kind, text).arg(room).arg(needed);
}

inline QStringList cutTabs(const QTabBar &bar)
{
    QStringList cut;
    for (int index = 0; index < bar.count(); ++index) {
        QStyleOptionTab option;
        option.initFrom(&bar);
        option.rect = bar.tabRect(index);
        option.text = bar.tabText(index);
        option.shape = bar.shape();
        const int room = bar.style()->subElementRect(QStyle::SE_TabBarTabText, &option, &bar).width();
        if (room < widthOf(bar, option.text) || !bar.rect().contains(option.rect))
            cut.append(complaint(QStringLiteral("tab"), option.text, room, widthOf(bar, option.text)));
    }
    return cut;
}

inline QStringList cutTitle(const QGroupBox &box)
{
    QStyleOptionGroupBox option;
    option.initFrom(&box);
    option.text = box.title();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    option.lineWidth = 1;
    const QRect place = box.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, &box);
    const int room = place.intersected(box.rect()).width();
    // The ink: nothing is drawn behind it. Qt's style leaves two pixels for what is before it, at whatever resolution, so that
    // at the highest the last letter may lose its smoothed edge, which nobody sees.
    const int edge = box.logicalDpiX() / 192;
    const int needed = box.fontMetrics().boundingRect(box.title()).right() + 1 - edge;
    if (room >= needed)
        return {};
    return {complaint(QStringLiteral("box"), box.title(), room, needed)};
}

inline QStringList cutHeaders(const QHeaderView &header)
{
    QStringList cut;
    const int margins = 2 * header.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header);
    for (int section = 0; section < header.count(); ++section) {
        const QString text = header.model()->headerData(section, Qt::Horizontal).toString();
        const int needed = widthOf(header, text) + margins;
        if (!header.isSectionHidden(section) && header.sectionSize(section) < needed)
            cut.append(complaint(QStringLiteral("header"), text, header.sectionSize(section), needed));
    }
    return cut;
}

inline QStringList cutMenuTitles(const QMenuBar &bar)
{
    QStringList cut;
    for (const QAction *action : bar.actions()) {
        const QRect place = bar.actionGeometry(const_cast<QAction *>(action));
        if (!bar.rect().contains(place) || place.width() < widthOf(bar, action->text()))
            cut.append(complaint(QStringLiteral("menu"), action->text(), place.width(), widthOf(bar, action->text())));
    }
    return cut;
}

/// Of a menu that is open, as it is then laid out. The keys' column is as wide as the longest of them.
inline QStringList cutEntries(const QMenu &menu)
{
    QStringList cut;
    int keysWidth = 0;
    for (const QAction *action : menu.actions())
        keysWidth = std::max(keysWidth, widthOf(menu, action->shortcut().toString(QKeySequence::NativeText)));
    for (QAction *action : menu.actions()) {
        const QRect place = menu.actionGeometry(action);
        const int needed = widthOf(menu, action->text()) + keysWidth;
        if (!menu.rect().contains(place) || (!action->isSeparator() && place.width() < needed))
            cut.append(complaint(QStringLiteral("entry"), action->text(), place.width(), needed));
    }
    if (!menu.screen()->availableGeometry().contains(menu.frameGeometry()))
        cut.append(QStringLiteral("the menu \"%1\" is larger than the screen").arg(menu.title()));
    return cut;
}

/// All of a shown window; its menus have a look of their own.
inline QStringList cutTexts(const QWidget &window)
{
    QStringList cut;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (!widget->isVisible() || widget->window() != &window)
            continue;
        if (const auto *tabs = qobject_cast<const QTabBar *>(widget))
            cut += cutTabs(*tabs);
        else if (const auto *box = qobject_cast<const QGroupBox *>(widget))
            cut += cutTitle(*box);
        else if (const auto *table = qobject_cast<const QTableView *>(widget))
            cut += cutHeaders(*table->horizontalHeader());
        else if (const auto *bar = qobject_cast<const QMenuBar *>(widget))
            cut += cutMenuTitles(*bar);
    }
    return cut;
}

} // namespace text_room
