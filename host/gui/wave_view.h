// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QWidget>

namespace host {

/// Draws a waveform, all of it in the width there is. For eyes only: who cannot see it is told by the text beside it.
class WaveView : public QWidget {
    Q_OBJECT

public:
    explicit WaveView(QWidget *parent = nullptr);

    /// Lowest and highest sample in turn, -1 to 1.
    void setWave(const QList<double> &wave);
    const QList<double> &wave() const noexcept { return wave_; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QList<double> wave_;
};

} // namespace host
