// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

class QLabel;
class QMenu;
class QPushButton;

namespace host {

/// Small window with a Stop button that stays usable while a test's dialog locks the main window: it attaches itself to the
/// open dialog as its transient child, and those are not locked. With events, also a menu of them. Object names "host_run_bar",
/// "host_run_bar_stop", "host_run_bar_events".
class RunBar : public QWidget {
    Q_OBJECT

public:
    /// `mainWindow` is the one that gets locked.
    RunBar(QWidget *mainWindow, bool hasEvents);

    void setRunning(bool isRunning);
    void setStopping();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void stopPressed();
    void eventChosen(int bit);

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void addEvents();
    void retranslate();
    void followDialog();
    void attachTo(const QWidget &dialog);

    QLabel *title_;
    QPushButton *stop_;
    QPushButton *events_ = nullptr;
    QMenu *menu_ = nullptr;
    bool isRunning_ = false;
};

} // namespace host
