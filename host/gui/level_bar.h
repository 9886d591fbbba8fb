// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

namespace host {

/// A bar for the RMS level and a line for the peak, from -60 to 0 dBFS. A screen reader is told the RMS level.
class LevelBar : public QWidget {
    Q_OBJECT

public:
    static constexpr double lowestShownDbfs = -60.0;

    explicit LevelBar(QWidget *parent = nullptr);

    void setLevels(double rmsDbfs, double peakDbfs);
    double rmsDbfs() const noexcept { return rmsDbfs_; }
    double peakDbfs() const noexcept { return peakDbfs_; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    double rmsDbfs_ = -120;
    double peakDbfs_ = -120;
};

} // namespace host
