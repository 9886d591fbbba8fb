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

// In the palette's own colours, so that a contrast theme keeps its contrast. What is too loud is striped, which is no matter of
// colour; the words say the same.
void LevelBar::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    const int filled = static_cast<int>(shareOf(rmsDbfs_) * width());
    painter.fillRect(QRect(0, 0, filled, height()), palette().highlight());
    const int stripe = std::max(2, height() / 4);
    if (loudnessOf(rmsDbfs_, peakDbfs_) == Loudness::tooLoud) {
        for (int left = stripe; left < filled; left += 2 * stripe)
            painter.fillRect(QRect(left, 0, std::min(stripe, filled - left), height()), palette().text());
    }
    const double peak = shareOf(peakDbfs_) * (width() - peakLineWidth);
    painter.fillRect(QRectF(peak, 0, peakLineWidth, height()), palette().text());
    painter.setPen(palette().color(QPalette::Text));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace host
