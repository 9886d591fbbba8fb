// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/operator/heard_log.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>

class QLabel;

namespace host {

class LevelBar;
class WaveView;

/// Small window beside the microphone dialog that shows what the listener hears: level and peak as a bar and in words, and the
/// waveform of the playback. A window of its own: the dialog is the module's. It is for looking at, so it need not take input
/// while the dialog locks all others. Object names "host_level_window", "host_level_bar", "host_level_words",
/// "host_level_wave".
class LevelWindow : public QWidget {
    Q_OBJECT

public:
    /// What is read to who cannot see it changes no more often.
    static constexpr qint64 wordsIntervalMs = 1000;

    /// `mainWindow` is the one that the dialog locks. Never shows itself while `source` is empty.
    LevelWindow(QWidget *mainWindow, QString source);

    void setSource(const QString &source);
    void take(const MeteredMoment &moment);
    /// What was heard during the last playback of a recording: lowest and highest sample in turn, fifty pairs a second. Empty
    /// when there was none.
    const QList<double> &playbackWave() const noexcept { return wave_; }
    /// Forgets what an earlier run left.
    void beginRun();

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void followDialog();
    void placeBeside(const QWidget &dialog);
    void collectWords(const MeteredMoment &moment);
    void sayWords();
    bool isPlaying() const;
    void retranslate();

    QString source_;
    QLabel *title_;
    LevelBar *bar_;
    QLabel *words_;
    WaveView *waveView_;
    QPointer<QWidget> dialog_;
    QList<double> wave_;
    bool wasPlaying_ = false;
    qint64 saidMs_ = 0;
    double powerSum_ = 0;
    int momentCount_ = 0;
    double peakDbfs_ = -120;
};

} // namespace host
