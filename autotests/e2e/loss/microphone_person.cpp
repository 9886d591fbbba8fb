// SPDX-License-Identifier: Apache-2.0
#include "autotests/e2e/loss/microphone_person.h"

#include "autotests/e2e/loss/fault.h"
#include "views/interaction_dialog.h"
#include "views/play_audio.h"
#include "views/record_audio.h"
#include "views/select_device.h"

#include <QAbstractButton>
#include <QEvent>
#include <QTest>
#include <QTimer>

#include <chrono>

using namespace ostra;

namespace {

constexpr std::chrono::milliseconds shortRecording{700};
constexpr int workerLimit = 10000; // ms; a worker looks at its flag every 500 ms

void press(const QObject &page, const char *name) { page.findChild<QAbstractButton *>(QLatin1String(name))->click(); }

} // namespace

MicrophonePerson::MicrophonePerson(InteractionDialog &dialog, bool playsBack) : dialog_(&dialog), playsBack_(playsBack)
{
    const auto noteLoss = [this] {
        ++lostCount_;
        lostMs_ = nowMs();
    };
    auto *record = dialog.findChild<RecordAudio *>();
    auto *play = dialog.findChild<PlayAudio *>();
    connect(record, &RecordAudio::DisconnectedDevice, this, noteLoss);
    connect(play, &PlayAudio::DisconnectedDevice, this, noteLoss);
    connect(record, &RecordAudio::NextWidget, this, [this] { playPageMs_ = nowMs(); });
    connect(&dialog, &QDialog::finished, this, [this] { endMs_ = nowMs(); });
    page_ = playsBack ? static_cast<QWidget *>(play) : record;
    page_->installEventFilter(this);
}

void MicrophonePerson::begin()
{
    auto *choice = dialog_->findChild<SelectDevice *>();
    for (QAbstractButton *button : choice->findChildren<QAbstractButton *>(QStringLiteral("microphone_test_radio_button"))) {
        if (button->text() == QLatin1String("Mic"))
            button->click();
    }
    press(*choice, "microphone_test_next_button");
    press(*dialog_->findChild<RecordAudio *>(), "microphone_test_record_button");
    if (playsBack_)
        QTimer::singleShot(shortRecording, this, [this] { cutRecordingShort(); });
}

void MicrophonePerson::cutRecordingShort()
{
    auto *record = dialog_->findChild<RecordAudio *>();
    for (int tick = 0; tick < 6; ++tick)
        record->OnTimerTick();
    if (QTest::qWaitFor([record] { return !record->job().isBusy(); }, workerLimit))
        record->OnTimerTick();
}

void MicrophonePerson::close()
{
    heartbeat_.stop();
    if (dialog_)
        press(*dialog_, "microphone_test_header_close");
}

// The worker's report is the only call that is queued for a page.
bool MicrophonePerson::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MetaCall && watched == page_) {
        ++statusCount_;
        statusMs_ = nowMs();
    }
    return QObject::eventFilter(watched, event);
}
