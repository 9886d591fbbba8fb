// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/gui/test_session.h"

#include <QGroupBox>

class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;

namespace host {

/// The tests to choose from, what the chosen one does, Run, Stop and the progress.
class RunPanel : public QGroupBox {
    Q_OBJECT

public:
    explicit RunPanel(QList<OfferedTest> tests, QWidget *parent = nullptr);

    /// Position of the chosen test; -1 when none is chosen.
    int chosen() const;
    void choose(qsizetype test);
    void setRunning(bool isRunning);
    void setStopping();
    /// Whether there is a device to run on.
    void setCanRun(bool canRun);
    void showProgress(std::uint32_t percent, const QString &text);

    void retranslate();
    /// For the mnemonics, which differ in the whole window.
    QPushButton *runButton() const { return run_; }
    QPushButton *stopButton() const { return stop_; }

signals:
    void runPressed();
    void stopPressed();

private:
    void showDescription();
    void enableButtons();
    void layOut();

    QList<OfferedTest> tests_;
    QListWidget *list_;
    QLabel *description_;
    QPushButton *run_;
    QPushButton *stop_;
    QProgressBar *progress_;
    QLabel *progressText_;
    QString progressKey_;
    bool canRun_ = false;
    bool isRunning_ = false;
    bool isStopping_ = false;
};

} // namespace host
