// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

class QKeyEvent;

namespace host {

/// The keys that work whichever window is open: a test's dialog is modal for the whole program, which locks the main window and
/// its shortcuts. So these are taken from every window of the program before it sees them. Install on the application.
///
/// Ctrl+Shift+S stops; for developers Ctrl+Shift+F1 to F10 simulate the events 0 to 9.
class RunKeys : public QObject {
    Q_OBJECT

public:
    explicit RunKeys(bool hasEvents, QObject *parent = nullptr) : QObject(parent), hasEvents_(hasEvents) {}

    /// The keys are taken only while a test runs.
    void setRunning(bool isRunning) noexcept { isRunning_ = isRunning; }

    /// As a person reads them: the toolkit names keys in the language in force.
    static QString runKeys();
    static QString stopKeys();
    static QString eventKeys(int bit);
    static constexpr int eventCount = 10;

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void stopPressed();
    void eventPressed(int bit);

private:
    bool isMine(const QKeyEvent &event) const;
    void act(const QKeyEvent &event);

    bool hasEvents_;
    bool isRunning_ = false;
};

} // namespace host
