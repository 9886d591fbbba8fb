// SPDX-License-Identifier: Apache-2.0
#include "host/gui/wave_view.h"

#include "host/gui/key_text.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>

namespace host {

namespace {

constexpr int widthInLetters = 40;
constexpr int heightInLines = 3;
/// What one press of a key walks on: finer steps would take a hundred presses a digit.
constexpr double walkMs = 50.0;

} // namespace

WaveView::WaveView(QWidget *parent) : PlotView(parent) { setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); }

void WaveView::setWave(const QList<double> &wave, double stepMs, double reach)
{
    wave_ = wave;
    stepMs_ = stepMs;
    reach_ = reach;
    forgetPosition();
}

QSize WaveView::sizeHint() const
{
    return {widthInLetters * fontMetrics().averageCharWidth(), heightInLines * fontMetrics().lineSpacing()};
}

int WaveView::stepCount() const
{
    const double lengthMs = static_cast<double>(wave_.size() / 2) * stepMs_;
    return static_cast<int>((lengthMs + walkMs - 1) / walkMs);
}

QString WaveView::wordsAt(int step) const
{
    const auto pairsPerStep = static_cast<qsizetype>(walkMs / stepMs_);
    const qsizetype first = std::min(2 * step * pairsPerStep, wave_.size() - 2);
    const auto begin = wave_.begin() + first;
    const auto [lowest, highest] = std::minmax_element(begin, begin + std::min(2 * pairsPerStep, wave_.size() - first));
    const QLocale locale;
    return hostText("PLOT_WAVE_AT")
        .arg(locale.toString(step * walkMs / 1000, 'f', 2), locale.toString(*lowest, 'f', 2),
             locale.toString(*highest, 'f', 2));
}

void WaveView::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    paintBackground(painter);
    const QRectF area(rect());
    painter.setPen(palette().color(QPalette::Text));
    painter.drawLine(QPointF(area.left(), area.center().y()), QPointF(area.right(), area.center().y()));
    const qsizetype count = wave_.size() / 2;
    const double step = area.width() / static_cast<double>(std::max<qsizetype>(1, count));
    const auto yOf = [this, &area](double sample) {
        return area.center().y() - std::clamp(sample / reach_, -1.0, 1.0) * area.height() / 2;
    };
    for (qsizetype index = 0; index < count; ++index) {
        const double left = area.left() + static_cast<double>(index) * step;
        const double top = yOf(wave_.at(2 * index + 1));
        painter.fillRect(QRectF(left, top, std::max(1.0, step), yOf(wave_.at(2 * index)) - top), palette().text());
    }
    if (position() < 0)
        return;
    const double place = area.left() + position() * walkMs / stepMs_ * step;
    painter.fillRect(QRectF(place, area.top(), 2, area.height()), palette().highlight());
}

} // namespace host
