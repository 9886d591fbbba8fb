// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/operator/stand_in_microphone.h"

#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto recordingLength = 3500ms; // the sentence begins after 600 ms and has to be over by then
constexpr auto jobLength = 1500ms;
const QString prefix = QStringLiteral("microphone_test_");

} // namespace

StandInMicrophone::StandInMicrophone(const QStringList &microphones, Note note)
    : note_(std::move(note)), pages_(new QStackedWidget(this))
{
    setObjectName(QStringLiteral("InteractionDialog"));
    setModal(true);
    auto *column = new QVBoxLayout(this); // before the first button, which is laid out in it
    connect(button(this, QStringLiteral("header_close")), &QPushButton::clicked, this, [this] { finish(Outcome::closed); });
    column->addWidget(pages_);
    for (QWidget *page : {choicePage(microphones), recordPage(), playPage()})
        pages_->addWidget(page);
    timer_.setSingleShot(true);
}

QPushButton *StandInMicrophone::button(QWidget *page, const QString &name)
{
    auto *made = new QPushButton(name, page);
    made->setObjectName(prefix + name);
    made->setAutoDefault(false);
    page->layout()->addWidget(made);
    return made;
}

QWidget *StandInMicrophone::choicePage(const QStringList &microphones)
{
    auto *page = new QWidget(this);
    auto *column = new QVBoxLayout(page);
    auto *area = new QScrollArea(page);
    area->setFixedHeight(60); // a long list does not fit
    area->setWidgetResizable(true);
    auto *list = new QWidget(area);
    auto *rows = new QVBoxLayout(list);
    for (const QString &name : microphones) {
        auto *choice = new QRadioButton(name, list);
        choice->setObjectName(prefix + QStringLiteral("radio_button"));
        choice->setChecked(name == microphones.first());
        rows->addWidget(choice);
    }
    area->setWidget(list);
    column->addWidget(area);
    connect(button(page, QStringLiteral("next_button")), &QPushButton::clicked, this, &StandInMicrophone::goToRecord);
    return page;
}

QWidget *StandInMicrophone::recordPage()
{
    auto *page = new QWidget(this);
    new QVBoxLayout(page);
    record_ = button(page, QStringLiteral("record_button"));
    connect(record_, &QPushButton::clicked, this, &StandInMicrophone::record);
    return page;
}

QWidget *StandInMicrophone::playPage()
{
    auto *page = new QWidget(this);
    new QVBoxLayout(page);
    play_ = button(page, QStringLiteral("play_button"));
    next_ = button(page, QStringLiteral("next_button"));
    connect(play_, &QPushButton::clicked, this, &StandInMicrophone::play);
    connect(next_, &QPushButton::clicked, this, [this] { finish(Outcome::heard); });
    return page;
}

void StandInMicrophone::goToRecord()
{
    const QList<QRadioButton *> choices = findChildren<QRadioButton *>();
    for (const QRadioButton *choice : choices) {
        if (choice->isChecked())
            recordedBy_ = choice->text();
    }
    pages_->setCurrentIndex(1);
}

void StandInMicrophone::record()
{
    ++recordCount_;
    record_->setEnabled(false);
    note_(Moment::recording);
    timer_.callOnTimeout(this, &StandInMicrophone::play);
    timer_.start(recordingLength);
}

void StandInMicrophone::play()
{
    timer_.disconnect();
    ++playCount_;
    play_->setEnabled(false);
    next_->setEnabled(false);
    pages_->setCurrentIndex(2);
    note_(Moment::playing);
    timer_.callOnTimeout(this, [this] {
        play_->setEnabled(true);
        next_->setEnabled(true);
        note_(Moment::played);
    });
    timer_.start(jobLength);
}

void StandInMicrophone::finish(Outcome outcome)
{
    timer_.stop();
    outcome_ = outcome;
    done(1);
}
