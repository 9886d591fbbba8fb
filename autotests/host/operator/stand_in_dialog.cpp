// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/operator/stand_in_dialog.h"

#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMovie>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto pauseLength = 200ms;
constexpr unsigned long holdMs = 200;
constexpr qsizetype sequenceLength = 3;

const QString prefix = QStringLiteral("audio_playback_test_");

} // namespace

StandInDialog::StandInDialog(QList<QList<int>> sequences, Play play) : sequences_(std::move(sequences)), play_(std::move(play))
{
    setObjectName(QStringLiteral("AudioPlaybackTestWidget"));
    setModal(true);
    build();
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &StandInDialog::startPlay);
    timer_.start(pauseLength);
}

QPushButton *StandInDialog::button(const QString &name, const QString &text)
{
    auto *made = new QPushButton(text, this);
    made->setObjectName(prefix + name);
    made->setAutoDefault(false);
    return made;
}

void StandInDialog::build()
{
    auto *rows = new QVBoxLayout(this);
    QPushButton *close = button(QStringLiteral("header_close"), QStringLiteral("x"));
    QPushButton *fail = button(QStringLiteral("fail_button"), QStringLiteral("fail"));
    repeat_ = button(QStringLiteral("numpad_repeat_button"), QStringLiteral("again"));
    thirdSet_ = button(QStringLiteral("third_input_set"), QString());
    thirdSet_->hide();
    secondFrame_ = new QFrame(this);
    secondFrame_->hide();
    auto *message = new QLabel(QStringLiteral("second"), secondFrame_);
    message->setObjectName(prefix + QStringLiteral("second_audio_sequence_message"));
    auto *keypad = new QGridLayout;
    for (int digit = 0; digit < 10; ++digit) {
        QPushButton *key = button(QStringLiteral("numpad_button_unpressed_%1").arg(digit), QString::number(digit));
        connect(key, &QPushButton::clicked, this, [this, digit] { type(digit, false); });
        keypad->addWidget(key, digit / 4, digit % 4);
    }
    for (QWidget *widget : std::initializer_list<QWidget *>{close, fail, repeat_, thirdSet_, secondFrame_})
        rows->addWidget(widget);
    rows->addLayout(keypad);
    connect(close, &QPushButton::clicked, this, [this] { finish(Outcome::closed); });
    connect(fail, &QPushButton::clicked, this, [this] { finish(Outcome::noSound); });
    connect(repeat_, &QPushButton::clicked, this, &StandInDialog::startPlay);
}

QPushButton *StandInDialog::coverAll()
{
    auto *cover = new QPushButton(this);
    cover->setGeometry(rect());
    cover->show();
    cover->raise();
    return cover;
}

QPushButton *StandInDialog::keypadButton(int digit) const
{
    return findChild<QPushButton *>(prefix + QStringLiteral("numpad_button_unpressed_%1").arg(digit));
}

void StandInDialog::startPlay()
{
    repeat_->setEnabled(false);
    delete movie_;
    movie_ = new QMovie(this);
    if (position_ < sequenceLength) {
        QTimer::singleShot(1ms, this, &StandInDialog::playNext);
        return;
    }
    position_ = 0;
    ++playCount_;
    repeat_->setEnabled(true);
    delete std::exchange(movie_, nullptr);
    play_(-1);
}

void StandInDialog::playNext()
{
    play_(sequences_.at(sequence_).at(position_));
    QThread::msleep(holdMs);
    ++position_;
    timer_.start(pauseLength);
}

void StandInDialog::type(int digit, bool isByKey)
{
    if (result() != 0 || !isVisible())
        return;
    keypadButton(digit)->hide();
    if (entered_.contains(digit))
        return;
    typed_.append(digit);
    byKey_.append(isByKey);
    typedEarly_ = typedEarly_ || !repeat_->isEnabled();
    entered_.append(digit);
    if (entered_.size() < sequenceLength)
        return;
    thirdSet_->setText(QString::number(digit));
    thirdSet_->show();
    judge();
}

void StandInDialog::judge()
{
    if (entered_ == sequences_.at(sequence_))
        return finish(Outcome::passed);
    if (sequence_ > 0)
        return finish(Outcome::wrong);
    ++sequence_;
    for (const int digit : std::as_const(entered_))
        keypadButton(digit)->show();
    entered_.clear();
    thirdSet_->hide();
    secondFrame_->show();
    position_ = 0;
    timer_.start(pauseLength);
}

void StandInDialog::finish(Outcome outcome)
{
    timer_.stop();
    outcome_ = outcome;
    done(1);
}

void StandInDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() >= Qt::Key_0 && event->key() <= Qt::Key_9)
        type(event->key() - Qt::Key_0, true);
    QDialog::keyPressEvent(event);
}
