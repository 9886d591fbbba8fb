// SPDX-License-Identifier: Apache-2.0
#include "host/gui/spectrum_view.h"

#include "host/gui/key_text.h"
#include "host/reports/digit_plots.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr int widthInLetters = 40;
constexpr int heightInLines = 3;
constexpr double bottomDbfs = -120.0;
constexpr double gridDb = 40.0;
constexpr double barShare = 0.7;

QString decibels(double level) { return QLocale().toString(level, 'f', 0); }

} // namespace

SpectrumView::SpectrumView(QWidget *parent) : PlotView(parent) { setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); }

void SpectrumView::setBands(const QList<double> &levelsDbfs, double lowestHz)
{
    levels_ = levelsDbfs;
    lowestHz_ = lowestHz;
    forgetPosition();
}

QString SpectrumView::frequencyOf(qsizetype band) const
{
    constexpr double bandsPerDecade = 10.0;
    return bandName(lowestHz_ * std::pow(10.0, static_cast<double>(band) / bandsPerDecade));
}

QString SpectrumView::wordsAt(int step) const
{
    return hostText("PLOT_SPECTRUM_AT").arg(frequencyOf(step), decibels(levels_[step]));
}

QString SpectrumView::loudestWords() const
{
    if (levels_.isEmpty())
        return {};
    const auto loudest = std::max_element(levels_.begin(), levels_.end());
    return hostText("PLOT_SPECTRUM_WORDS").arg(frequencyOf(loudest - levels_.begin()), decibels(*loudest));
}

QString SpectrumView::allWords() const
{
    QStringList words;
    for (int band = 0; band < stepCount(); ++band)
        words.append(wordsAt(band));
    return words.join(QStringLiteral(", "));
}

QSize SpectrumView::sizeHint() const
{
    return {widthInLetters * fontMetrics().averageCharWidth(), heightInLines * fontMetrics().lineSpacing()};
}

void SpectrumView::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    paintBackground(painter);
    const QRectF area(rect());
    const auto heightOf = [&area](double level) { return area.height() * std::clamp(1 - level / bottomDbfs, 0.0, 1.0); };
    painter.setPen(QPen(palette().color(QPalette::Text), 0, Qt::DotLine)); // a role that every contrast theme has
    for (double level = bottomDbfs + gridDb; level < 0; level += gridDb)
        painter.drawLine(QPointF(area.left(), area.bottom() - heightOf(level)),
                         QPointF(area.right(), area.bottom() - heightOf(level)));
    const double slot = area.width() / std::max(1, stepCount());
    for (int band = 0; band < stepCount(); ++band) {
        const double height = heightOf(levels_[band]);
        painter.fillRect(QRectF(area.left() + band * slot, area.bottom() - height, slot * barShare, height),
                         band == position() ? palette().highlight() : palette().text());
    }
}

} // namespace host
