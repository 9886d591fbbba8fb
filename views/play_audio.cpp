// SPDX-License-Identifier: Apache-2.0
#include "views/play_audio.h"

#include "audio/player_helper.h"
#include "utils/guarded.h"
#include "views/ui_play_audio.h"
#include "views/widget_setup.h"

#include <QShowEvent>

#include <utility>

namespace ostra {

PlayAudio::PlayAudio(std::shared_ptr<audio::RecordingSlot> recording, QString deviceName, QWidget *parent)
    : QWidget(parent), ui_(formOf<Ui::PlayAudio>(*this)), recording_(std::move(recording)), deviceName_(std::move(deviceName)),
      job_(*this, *ui_->microphone_test_lcd_numbers)
{
    setAttribute(Qt::WA_StyledBackground);
    ui_->microphone_test_play_message->setText(translated("PRESS_PLAY_AND_LISTEN_TO_THE_RECORDED_AUDIO"));
    prepareButton(*ui_->microphone_test_play_button, "PLAY");
    prepareButton(*ui_->microphone_test_cancel_button, "CANCEL");
    prepareButton(*ui_->microphone_test_next_button, "NEXT");
    ui_->microphone_test_next_button->setEnabled(false);
    connect(ui_->microphone_test_play_button, SIGNAL(clicked(bool)), this, SLOT(OnBtnPlayClicked()));
    connect(ui_->microphone_test_cancel_button, SIGNAL(clicked(bool)), this, SLOT(OnBtnCancelClicked()));
    connect(ui_->microphone_test_next_button, SIGNAL(clicked(bool)), this, SLOT(OnBtnNextClicked()));
}

PlayAudio::~PlayAudio() = default;

int PlayAudio::limitSeconds() const
{
    const std::shared_ptr<audio::AudioRecording> recording = recording_->stored();
    return recording ? recording->seconds : 0;
}

void PlayAudio::enableButtons(bool isEnabled)
{
    ui_->microphone_test_play_button->setEnabled(isEnabled);
    ui_->microphone_test_next_button->setEnabled(isEnabled);
}

void PlayAudio::set_result_status(int status) { job_.report(status); }

void PlayAudio::OnBtnCancelClicked()
{
    if (!job_.cancel())
        utils::guarded([this] { emit CancelTest(); });
}

void PlayAudio::OnBtnNextClicked()
{
    utils::guarded([this] { emit NextWidget(); });
}

void PlayAudio::OnBtnPlayClicked()
{
    if (job_.isBusy())
        return;
    const auto start = [this] {
        enableButtons(false);
        job_.start(std::make_unique<audio::PlayerHelper>(recording_->stored(), job_.begin(), deviceName_), SLOT(PlayAudio()));
    };
    utils::guarded(start, [this] { emit AbortTest(); });
}

void PlayAudio::OnTimerTick()
{
    const auto act = [this] {
        const TimedJob::Turn turn = job_.tick(limitSeconds());
        if (turn == TimedJob::Turn::finished)
            offerToGoOn();
        else
            announceFailure(*this, turn);
        job_.showSeconds(limitSeconds()); // the dialog may have finished by now, but is not deleted yet
    };
    utils::guarded(act, [this] { emit AbortTest(); });
}

void PlayAudio::offerToGoOn()
{
    enableButtons(true);
    ui_->microphone_test_next_button->setFocus(); // the focus went on to the cancel button when these two were disabled
}

void PlayAudio::showEvent(QShowEvent *event)
{
    // The button is disabled while it plays, yet its signal would start a second playback; and a window that comes back from
    // the task bar is shown as well.
    const auto play = [=, this] {
        if (!event->spontaneous() && !job_.isBusy())
            emit ui_->microphone_test_play_button->clicked(false);
        QWidget::showEvent(event);
    };
    utils::guarded(play, [this] { emit AbortTest(); });
}

} // namespace ostra
