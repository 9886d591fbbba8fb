// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/gui/plot_view.h"

#include <QList>

namespace host {

/// Draws a waveform, all of it in the width there is.
class WaveView : public PlotView {
    Q_OBJECT

public:
    explicit WaveView(QWidget *parent = nullptr);

    /// Lowest and highest sample in turn, -1 to 1. `stepMs` is the time that a pair covers, `reach` the sample that the top of
    /// the view stands for.
    void setWave(const QList<double> &wave, double stepMs = 20.0, double reach = 1.0);
    const QList<double> &wave() const noexcept { return wave_; }

    QSize sizeHint() const override;

protected:
    int stepCount() const override;
    QString wordsAt(int step) const override;
    void paintEvent(QPaintEvent *event) override;

private:
    QList<double> wave_;
    double stepMs_ = 20.0;
    double reach_ = 1.0;
};

} // namespace host
