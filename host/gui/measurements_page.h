// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"

#include <QWidget>

#include <optional>

class QLabel;
class QTableWidget;

namespace host {

class PlotView;
class SpectrumView;
class WaveView;

/// What was measured in the last run: its digits in a table, and waveform and spectrum of the chosen one, each also in words.
/// Of a run of the microphone test the playback of its recording.
class MeasurementsPage : public QWidget {
    Q_OBJECT

public:
    explicit MeasurementsPage(QWidget *parent = nullptr);

    void showRun(const RunRecord &record);
    void clear();
    void retranslate();

private:
    struct Plot {
        QWidget *column;
        PlotView *view;
        QLabel *words;
    };

    Plot addPlot(PlotView *view, const QString &name);
    void fillTable();
    void showChosen();
    void showDigit(const HeardDigit &digit);
    void showRecording(const HeardRecording &recording);
    void describe(const Plot &plot, const QString &title, const QString &words, const QString &details);
    bool hasDigits() const;

    std::optional<RunRecord> record_;
    QLabel *nothing_;
    QTableWidget *table_;
    WaveView *wave_;
    SpectrumView *spectrum_;
    Plot wavePlot_;
    Plot spectrumPlot_;
};

} // namespace host
