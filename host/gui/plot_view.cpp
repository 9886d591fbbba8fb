// SPDX-License-Identifier: Apache-2.0
#include "host/gui/plot_view.h"

#include "host/gui/accessible_roles.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace host {

namespace {

constexpr int minimumWidthInLetters = 20;
constexpr int minimumHeightInLines = 2;
constexpr int frameWidth = 2;

} // namespace

PlotView::PlotView(QWidget *parent) : QWidget(parent) { installAccessibleRoles(); }

void PlotView::setWalkable() { setFocusPolicy(Qt::StrongFocus); }

QSize PlotView::minimumSizeHint() const
{
    return {minimumWidthInLetters * fontMetrics().averageCharWidth(), minimumHeightInLines * fontMetrics().lineSpacing()};
}

void PlotView::forgetPosition()
{
    position_ = -1;
    update();
}

void PlotView::paintBackground(QPainter &painter) const
{
    painter.fillRect(rect(), palette().base());
    if (!hasFocus())
        return;
    painter.setPen(QPen(palette().color(QPalette::Highlight), frameWidth));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

int PlotView::target(int key) const
{
    switch (key) {
    case Qt::Key_Left:
        return position_ < 0 ? 0 : position_ - 1;
    case Qt::Key_Right:
        return position_ + 1;
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return stepCount() - 1;
    default:
        return -1;
    }
}

void PlotView::keyPressEvent(QKeyEvent *event)
{
    const bool isWalk = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right || event->key() == Qt::Key_Home ||
                        event->key() == Qt::Key_End;
    if (!isWalk || stepCount() == 0)
        return QWidget::keyPressEvent(event);
    position_ = std::clamp(target(event->key()), 0, stepCount() - 1);
    update();
    emit walked(wordsAt(position_));
}

void PlotView::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void PlotView::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}

} // namespace host
