// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLabel>
#include <QList>
#include <QPushButton>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QWidget>

/// Whether all that a dialog shows has room.
namespace clipped_widgets {

/// The first visible label or button that is smaller than its text needs or lies outside the dialog; empty when all fit.
inline QString firstClipped(const QWidget &view)
{
    const QWidgetList widgets = view.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const auto *label = qobject_cast<const QLabel *>(widget);
        const auto *button = qobject_cast<const QPushButton *>(widget);
        if (!widget->isVisible() || (label == nullptr && button == nullptr))
            continue;
        QSize needs = widget->sizeHint();
        if (label != nullptr && label->wordWrap())
            needs = {0, label->heightForWidth(widget->width())};
        if (button != nullptr && button->text().isEmpty())
            needs = {0, 0};
        if (label != nullptr && label->text().isEmpty())
            needs = {0, 0};
        const QRect inDialog(widget->mapTo(&view, QPoint()), widget->size());
        if (widget->width() < needs.width() || widget->height() < needs.height() || !view.rect().contains(inDialog))
            return QStringLiteral("%1: %2x%3 at %4,%5, needs %6x%7")
                .arg(widget->objectName())
                .arg(widget->width())
                .arg(widget->height())
                .arg(inDialog.x())
                .arg(inDialog.y())
                .arg(needs.width())
                .arg(needs.height());
    }
    return {};
}

/// Pairs of visible widgets without children that cover each other.
inline QStringList overlapping(const QWidget &view)
{
    QStringList result;
    QList<const QWidget *> leaves;
    const QWidgetList widgets = view.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (widget->isVisible() && widget->findChildren<QWidget *>().isEmpty())
            leaves.append(widget);
    }
    for (const QWidget *one : leaves) {
        for (const QWidget *other : leaves) {
            const QRect first(one->mapTo(&view, QPoint()), one->size());
            const QRect second(other->mapTo(&view, QPoint()), other->size());
            if (one < other && first.intersects(second))
                result.append(one->objectName() + u'/' + other->objectName());
        }
    }
    return result;
}

} // namespace clipped_widgets
