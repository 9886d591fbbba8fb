// SPDX-License-Identifier: Apache-2.0
#include "views/icon_push_button.h"

#include "utils/guarded.h"

#include <QPainter>

IconPushButton::IconPushButton(QWidget *parent) : QPushButton(parent) {}

void IconPushButton::drawIconAt(const QIcon &icon, const QPoint &topLeft, const QSize &size)
{
    drawnIcon_ = icon;
    topLeft_ = topLeft;
    drawnSize_ = size;
    update();
}

void IconPushButton::paintEvent(QPaintEvent *event)
{
    ostra::utils::guarded([=, this] {
        QPushButton::paintEvent(event);
        if (drawnIcon_.isNull() || drawnSize_.isEmpty())
            return;
        QPainter painter(this);
        painter.drawPixmap(topLeft_, drawnIcon_.pixmap(drawnSize_, devicePixelRatioF(), QIcon::Normal, QIcon::Off));
    });
}
