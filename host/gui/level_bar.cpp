// SPDX-License-Identifier: Apache-2.0
#include "host/gui/level_bar.h"

#include "host/gui/accessible_roles.h"
#include "host/gui/level_words.h"

#include <QPainter>

#include <algorithm>

namespace host {

namespace {

constexpr int widthInLetters = 40;
constexpr int peakLineWidth = 3;

double shareOf(double level) { return std::clamp(1.0 - level / LevelBar::lowestShownDbfs, 0.0, 1.0); }

} // namespace

LevelBar::LevelBar(QWidget *parent) : QWidget(parent)
{
    installAccessibleRoles();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void LevelBar::setLevels(double rmsDbfs, double peakDbfs)
{
    rmsDbfs_ = rmsDbfs;
    peakDbfs_ = peakDbfs;
    update();
}

QSize LevelBar::sizeHint() const { return {widthInLetters * fontMetrics().averageCharWidth(), fontMetrics().lineSpacing()}; }

// In the palette's own colours where the level is fine, so that a contrast theme keeps its contrast; the words say the same.
void LevelBar::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    const bool isTooLoud = loudnessOf(rmsDbfs_, peakDbfs_) == Loudness::tooLoud;
    const QColor colour = isTooLoud ? QColor(Qt::red) : palette().color(QPalette::Highlight);
    painter.fillRect(QRectF(0, 0, shareOf(rmsDbfs_) * width(), height()), colour);
    const double peak = shareOf(peakDbfs_) * (width() - peakLineWidth);
    painter.fillRect(QRectF(peak, 0, peakLineWidth, height()), isTooLoud ? colour : palette().color(QPalette::Text));
    painter.setPen(palette().color(QPalette::Text));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace host
