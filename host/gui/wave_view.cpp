// SPDX-License-Identifier: Apache-2.0
#include "host/gui/wave_view.h"

#include "host/gui/accessible_roles.h"

#include <QPainter>

#include <algorithm>

namespace host {

namespace {

constexpr int widthInLetters = 40;
constexpr int heightInLines = 3;

} // namespace

WaveView::WaveView(QWidget *parent) : QWidget(parent)
{
    installAccessibleRoles();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void WaveView::setWave(const QList<double> &wave)
{
    wave_ = wave;
    update();
}

QSize WaveView::sizeHint() const
{
    return {widthInLetters * fontMetrics().averageCharWidth(), heightInLines * fontMetrics().lineSpacing()};
}

void WaveView::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const QRectF area(rect());
    painter.fillRect(area, palette().base());
    painter.setPen(palette().color(QPalette::Text));
    painter.drawLine(QPointF(area.left(), area.center().y()), QPointF(area.right(), area.center().y()));
    const qsizetype count = wave_.size() / 2;
    const double step = area.width() / static_cast<double>(std::max<qsizetype>(1, count));
    const auto yOf = [&area](double sample) { return area.center().y() - std::clamp(sample, -1.0, 1.0) * area.height() / 2; };
    for (qsizetype index = 0; index < count; ++index) {
        const double left = area.left() + static_cast<double>(index) * step;
        const double top = yOf(wave_.at(2 * index + 1));
        painter.fillRect(QRectF(left, top, std::max(1.0, step), yOf(wave_.at(2 * index)) - top), palette().text());
    }
}

} // namespace host
