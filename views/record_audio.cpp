// SPDX-License-Identifier: Apache-2.0
#include "views/record_audio.h"

#include "audio/recorder_helper.h"
#include "utils/guarded.h"
#include "views/ui_record_audio.h"
#include "views/widget_setup.h"

#include <utility>

namespace ostra {

RecordAudio::RecordAudio(std::shared_ptr<audio::RecordingSlot> recording, QWidget *parent)
    : QWidget(parent), ui_(formOf<Ui::RecordAudio>(*this)), recording_(std::move(recording)),
      job_(*this, *ui_->microphone_test_lcd_numbers)
{
    setAttribute(Qt::WA_StyledBackground);
    ui_->microphone_test_record_message->setText(translated("PRESS_RECORD_AND_SPEAK_ON_THE_MICROPHONE"));
    prepareButton(*ui_->microphone_test_record_button, "RECORD");
    prepareButton(*ui_->microphone_test_cancel_button, "CANCEL");
    connect(ui_->microphone_test_record_button, SIGNAL(clicked(bool)), this, SLOT(OnBtnRecordClicked()));
    connect(ui_->microphone_test_cancel_button, SIGNAL(clicked(bool)), this, SLOT(OnBtnCancelClicked()));
}

RecordAudio::~RecordAudio() = default;

void RecordAudio::set_device_name(QString deviceName) { deviceName_ = std::move(deviceName); }

void RecordAudio::set_result_status(int status) { job_.report(status); }

void RecordAudio::OnBtnCancelClicked()
{
    if (!job_.cancel())
        utils::guarded([this] { emit CancelTest(); });
}

void RecordAudio::OnBtnRecordClicked()
{
    if (job_.isBusy())
        return;
    const auto start = [this] {
        ui_->microphone_test_record_button->setEnabled(false);
        job_.start(std::make_unique<audio::RecorderHelper>(recording_, job_.begin(), deviceName_, recordLimit),
                   SLOT(RecordAudio()));
    };
    utils::guarded(start, [this] { emit AbortTest(); });
}

void RecordAudio::OnTimerTick()
{
    const auto act = [this] {
        const TimedJob::Turn turn = job_.tick(recordLimit);
        if (turn == TimedJob::Turn::finished)
            emit NextWidget();
        else
            announceFailure(*this, turn);
        job_.showSeconds(recordLimit); // the dialog may have finished by now, but is not deleted yet
    };
    utils::guarded(act, [this] { emit AbortTest(); });
}

} // namespace ostra
