// SPDX-License-Identifier: Apache-2.0
#include "views/interaction_dialog.h"

#include "audio/audio_devices.h"
#include "utils/dpi.h"
#include "utils/guarded.h"
#include "utils/pace.h"
#include "views/microphone_form.h"
#include "views/play_audio.h"
#include "views/record_audio.h"
#include "views/select_device.h"
#include "views/system_events.h"
#include "views/ui_interaction_dialog.h"
#include "views/widget_setup.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPointer>

#include <chrono>
#include <utility>

namespace ostra {

namespace {

constexpr std::chrono::milliseconds systemEventInterval{500};

} // namespace

InteractionDialog::InteractionDialog(const QString &outputDeviceName, QWidget *parent, QObject *eventFilter,
                                     EventSource *events)
    : InputDialog(parent, eventFilter, Qt::Dialog | Qt::FramelessWindowHint),
      recording_(std::make_shared<audio::RecordingSlot>()), selectDevice_(new SelectDevice(this)),
      recordAudio_(new RecordAudio(recording_, this)), playAudio_(new PlayAudio(recording_, outputDeviceName, this)),
      events_(events)
{
    connect(&systemEventTimer_, &QTimer::timeout, this, &InteractionDialog::CheckSystemEvent);
    systemEventTimer_.start(utils::paced(systemEventInterval));
    ui_ = formOf<Ui::InteractionDialog>(*this);
    prepareHeader();
    prepareWindow();
    connect(ui_->microphone_test_popups_space, &QStackedWidget::currentChanged, this,
            &InteractionDialog::CheckMicrophoneConnection);
    connectPages();
    for (QWidget *page : std::initializer_list<QWidget *>{selectDevice_, recordAudio_, playAudio_})
        ui_->microphone_test_popups_space->addWidget(page);
    ui_->microphone_test_popups_space->setCurrentWidget(selectDevice_);
    selectDevice_->takeFocus();
    connect(this, &QDialog::finished, this, &InteractionDialog::closing);
    connect(this, &InteractionDialog::closing, this, &InteractionDialog::stopJobs);
    const utils::Dpi *dpi = utils::Dpi::instance();
    microphone_form::scale(*this, dpi == nullptr ? 1.0 : dpi->scaleFactor());
    qApp->installEventFilter(this);
    isReady_ = true;
}

InteractionDialog::~InteractionDialog()
{
    isReady_ = false;
    stopJobs();
}

void InteractionDialog::prepareHeader()
{
    QPushButton *close = ui_->microphone_test_header_close;
    drag_ = std::make_unique<HeaderDrag>(*this, *ui_->microphone_test_header, *close);
    connect(close, &QPushButton::clicked, this, &InteractionDialog::Close);
    prepareButton(*close);
    close->setAccessibleName(translated("CANCEL")); // it shows an icon only
    ui_->microphone_test_header_label->setText(translated("MICROPHONE_INTERACTIVE_TEST"));
}

void InteractionDialog::prepareWindow()
{
    setWindowTitle(translated("APPLICATION_NAME"));
    setWindowModality(Qt::ApplicationModal);
}

void InteractionDialog::connectPages()
{
    connect(selectDevice_, SIGNAL(NextWidget()), this, SLOT(goToNextWidget()));
    connect(selectDevice_, SIGNAL(cancelTest()), this, SLOT(Cancel()));
    connect(selectDevice_, SIGNAL(micChanged(QString)), recordAudio_, SLOT(set_device_name(QString)));
    connectJobSignals(recordAudio_, SLOT(goToNextWidget()));
    connectJobSignals(playAudio_, SLOT(Finish()));
}

void InteractionDialog::connectJobSignals(QObject *page, const char *nextSlot)
{
    connect(page, SIGNAL(NextWidget()), this, nextSlot);
    connect(page, SIGNAL(CancelTest()), this, SLOT(Cancel()));
    connect(page, SIGNAL(AbortTest()), this, SLOT(Abort()));
    connect(page, SIGNAL(DisconnectedDevice()), this, SLOT(AbortDeviceDisconnected()));
}

void InteractionDialog::stopJobs()
{
    const QDeadlineTimer deadline(workerEndLimit); // one for both pages
    TimedJob *const jobs[] = {&recordAudio_->job(), &playAudio_->job()};
    for (TimedJob *job : jobs)
        job->requestStop(); // also to the second one before the first one takes all the time
    for (TimedJob *job : jobs)
        job->stop(deadline);
}

void InteractionDialog::Close() { done(dialog_result::closed); }

void InteractionDialog::Cancel() { done(dialog_result::cancelled); }

void InteractionDialog::Abort()
{
    isAborted_ = isAborted_ || !hasEnded_;
    done(dialog_result::closed);
}

void InteractionDialog::AbortDeviceDisconnected()
{
    isDeviceDisconnected_ = isDeviceDisconnected_ || !hasEnded_;
    done(dialog_result::closed);
}

void InteractionDialog::Finish() { done(dialog_result::heard); }

template <typename Body>
void InteractionDialog::guard(Body body) noexcept
{
    utils::guarded(body, [this] { Abort(); });
}

void InteractionDialog::goToNextWidget()
{
    QStackedWidget *pages = ui_->microphone_test_popups_space;
    const int next = pages->currentIndex() + 1;
    // Before it is shown: the last page plays at once, and the list of devices is closed to this thread while a worker opens
    // one, for 30 s when the sound server does not answer.
    CheckMicrophoneConnection(next);
    checkedPage_ = next;
    guard([=] { pages->setCurrentIndex(next); });
    checkedPage_ = noPage;
}

void InteractionDialog::CheckMicrophoneConnection(int index)
{
    if (index == checkedPage_)
        return;
    // By page, not by number: the form has placeholders before the real pages.
    const QWidget *page = ui_->microphone_test_popups_space->widget(index);
    const auto isGone = [](const QString &name, bool isCapture) {
        return !audio::isAudioDeviceConnected(name.toStdString(), isCapture);
    };
    guard([&, this] {
        if ((page == recordAudio_ && isGone(recordAudio_->deviceName(), true)) ||
            (page == playAudio_ && isGone(playAudio_->deviceName(), false)))
            AbortDeviceDisconnected();
    });
}

bool InteractionDialog::isCancelledByEvent() const { return isReady_ && askForEvents(events_) != EventAnswer::goOn; }

void InteractionDialog::CheckSystemEvent()
{
    const EventAnswer answer = isReady_ ? askForEvents(events_) : EventAnswer::goOn;
    if (answer == EventAnswer::goOn)
        return;
    // What the host could not tell it may never tell: no click that already waits may make a pass of it.
    if (answer == EventAnswer::unknown)
        return Abort();
    // After an event the host tells of it again.
    guard([this] {
        QTimer::singleShot(0, this, [this] {
            if (isReady_)
                done(result());
        });
    });
}

void InteractionDialog::done(int result)
{
    if (std::exchange(hasEnded_, true))
        return; // a click or a tick that was under way when it ended does not change the answer
    isReady_ = false; // the end changes the window, and a change asks for events
    const QPointer<InteractionDialog> self(this);
    InputDialog::done(result);
    if (self && isVisible())
        utils::guarded([this] { hide(); }); // a filter that kept it open would keep it for ever
    if (self)
        stopJobs(); // a listener that throws may have kept `closing` from being told
}

void InteractionDialog::changeEvent(QEvent *event)
{
    // Only Qt itself could throw here, for lack of memory, while it answers a change of font or style.
    guard([=, this] {
        if (isCancelledByEvent())
            done(dialog_result::cancelled);
        InputDialog::changeEvent(event);
    });
}

bool InteractionDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == qApp && event->type() == QEvent::Quit)
        isApplicationQuitting_ = true;
    return InputDialog::eventFilter(watched, event);
}

void InteractionDialog::closeEvent(QCloseEvent *event)
{
    // Nobody has heard a sound when the user or the end of the application takes the window away: result 0 would say so.
    if (!event->spontaneous() && !isApplicationQuitting_)
        return InputDialog::closeEvent(event);
    Close();
    event->accept();
}

void InteractionDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        done(dialog_result::cancelled);
}

void InteractionDialog::mousePressEvent(QMouseEvent *event)
{
    guard([=, this] { drag_->press(*event); });
}

void InteractionDialog::mouseMoveEvent(QMouseEvent *event)
{
    guard([=, this] { drag_->move(*event); });
}

void InteractionDialog::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    guard([this] { drag_->release(); });
}

void InteractionDialog::showEvent(QShowEvent *event)
{
    guard([=, this] {
        if (parentWidget() != nullptr) {
            const QWidget *window = parentWidget()->window();
            move(window->frameGeometry().topLeft() + (window->rect().center() - rect().center()));
        }
        InputDialog::showEvent(event);
    });
}

} // namespace ostra
