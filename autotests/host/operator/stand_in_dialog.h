// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDialog>
#include <QList>
#include <QTimer>

#include <functional>

class QFrame;
class QPushButton;

/// Has the names and the manners of the module's playback dialog, five times as fast: plays three digits, each of which blocks
/// the thread, takes digits by keypad and keyboard, and gives a second sequence for a wrong first one.
class StandInDialog : public QDialog {
    Q_OBJECT

public:
    enum class Outcome { passed, wrong, noSound, closed };
    using Play = std::function<void(int digit)>; ///< called at the beginning of a digit; -1: the sequence is over

    StandInDialog(QList<QList<int>> sequences, Play play);

    Outcome outcome() const { return outcome_; }
    const QList<int> &typed() const { return typed_; }       ///< every digit, over both sequences
    const QList<bool> &typedByKey() const { return byKey_; } ///< how each of them came
    int playCount() const { return playCount_; }             ///< sequences that were played
    bool wasTypedWhilePlaying() const { return typedEarly_; }
    QPushButton *coverAll(); ///< covers the whole dialog by a button of its own

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void build();
    QPushButton *button(const QString &name, const QString &text);
    QPushButton *keypadButton(int digit) const;
    void startPlay();
    void playNext();
    void type(int digit, bool isByKey);
    void judge();
    void finish(Outcome outcome);

    QList<QList<int>> sequences_;
    Play play_;
    QTimer timer_;
    QObject *movie_ = nullptr;
    QPushButton *repeat_ = nullptr;
    QPushButton *thirdSet_ = nullptr;
    QFrame *secondFrame_ = nullptr;
    qsizetype position_ = 0;
    qsizetype sequence_ = 0;
    QList<int> entered_;
    QList<int> typed_;
    QList<bool> byKey_;
    int playCount_ = 0;
    bool typedEarly_ = false;
    Outcome outcome_ = Outcome::closed;
};
