// SPDX-License-Identifier: Apache-2.0
#include "views/header_drag.h"

#include <QMouseEvent>
#include <QWidget>

namespace ostra {

namespace {

// By position: whether a widget "is under the mouse" hangs on enter events, which a window that has just come up lacks.
bool isAbove(const QPoint &position, const QWidget &dialog, const QWidget &widget)
{
    return widget.isVisible() && widget.rect().contains(widget.mapFrom(&dialog, position));
}

} // namespace

void HeaderDrag::press(const QMouseEvent &event)
{
    const QPoint position = event.position().toPoint();
    if (!isAbove(position, dialog_, header_) || isAbove(position, dialog_, closeButton_))
        return;
    isDragging_ = true;
    offset_ = position;
    dialog_.setCursor(Qt::ClosedHandCursor);
}

void HeaderDrag::move(const QMouseEvent &event)
{
    if (isDragging_)
        dialog_.move(event.globalPosition().toPoint() - offset_);
}

void HeaderDrag::release()
{
    isDragging_ = false;
    dialog_.setCursor(Qt::ArrowCursor);
}

} // namespace ostra
