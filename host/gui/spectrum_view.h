// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/gui/plot_view.h"

#include <QList>

namespace host {

/// Draws the levels of third-octave bands as bars, from -120 to 0 dBFS, with a line every 40 dB.
class SpectrumView : public PlotView {
    Q_OBJECT

public:
    explicit SpectrumView(QWidget *parent = nullptr);

    /// \param lowestHz centre of the first band
    void setBands(const QList<double> &levelsDbfs, double lowestHz);
    const QList<double> &bands() const noexcept { return levels_; }

    /// The loudest band in words; empty without bands.
    QString loudestWords() const;
    /// Every band in words.
    QString allWords() const;

    QSize sizeHint() const override;

protected:
    int stepCount() const override { return static_cast<int>(levels_.size()); }
    QString wordsAt(int step) const override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString frequencyOf(qsizetype band) const;

    QList<double> levels_;
    double lowestHz_ = 100.0;
};

} // namespace host
