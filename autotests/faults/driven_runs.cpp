// SPDX-License-Identifier: Apache-2.0
#include "autotests/faults/driven_runs.h"

#include "audio/abandoned_workers.h"
#include "autotests/support/process_facts.h"
#include "autotests/support/refusing_allocator.h"
#include "autotests/support/wave_files.h"
#include "views/audio_playback_test_view.h"
#include "views/digit_sequence.h"
#include "views/interaction_dialog.h"
#include "views/play_audio.h"
#include "views/record_audio.h"
#include "views/select_device.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QTest>

using namespace ostra;

namespace driven_runs {

namespace {

constexpr int stuckLimit = 60000; // ms
constexpr int patientStuckLimit = 240000;
constexpr int threadEndLimit = 5000;

// A sequence is 0, 1, 2 when nothing was drawn before.
int drawnCount = 0;

template <typename Dialog>
Dialog *openDialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *found = qobject_cast<Dialog *>(widget); found != nullptr && found->isVisible() && !found->hasFinished())
            return found;
    }
    return nullptr;
}

template <typename Page>
Page *pageOf(const QObject &dialog)
{
    return dialog.findChild<Page *>();
}

} // namespace

int nextDigit() { return drawnCount++ % 10; }

Place::Place()
{
    if (!QDir::setCurrent(folder_.path()))
        qFatal("no folder for the test");
    wave_files::write(QStringLiteral("config.ini"), "[LANGUAGE]\nDEFAULT_LANGUAGE=english\n");
    wave_files::writeClipSet(QCoreApplication::applicationDirPath(), QStringLiteral("en_US"), wave_files::wave(48000, 2, 10));
}

Place::~Place()
{
    QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/audio_files")).removeRecursively();
    QDir::setCurrent(QDir::rootPath()); // a folder in use cannot be removed everywhere
}

Devices::Devices()
{
    sound.keepsNames = false;
    audio::SdlApi &api = audio::sdl(); // the fake puts the real calls back
    api.queueAudio = [](SDL_AudioDeviceID, const void *, Uint32) { return 0; };
    api.setEnvironment = [](const char *, const char *, int) { return 0; };
    api.initSubSystem = [](Uint32) { return 0; };
    api.delay = [](Uint32) { SDL_Delay(1); };
    playbackSources().digit = &nextDigit;
}

Outcome Driver::run(ModuleInterface &module, ScriptedContext &context)
{
    prepare(context);
    Test *test = module.diagnosticAt(0)->testAt(kind_ == Kind::playback ? 0 : 1);
    try {
        outcome_.code = test->run(&context);
    } catch (...) {
        outcome_.code.reset();
    }
    timer_.stop();
    outcome_.callCount = context.calls.size();
    return outcome_;
}

void Driver::prepare(ScriptedContext &context)
{
    const refusing_allocator::Pause pause; // the test's own part is not what is to fail
    context.onWidget = [](InputRequest &request) { request.widget->exec(nullptr, nullptr); };
    context.answer = kind_ == Kind::playback ? 1 : 3;
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { step(); });
    timer_.start(1);
    sinceStart_.start();
    drawnCount = 0;
}

void Driver::step()
{
    try {
        if (sinceStart_.elapsed() > (isPatient ? patientStuckLimit : stuckLimit))
            giveUp();
        else if (!waits)
            advance();
    } catch (...) {
        outcome_.hasSlotThrown = true;
    }
}

void Driver::advance()
{
    if (kind_ == Kind::playback)
        isPatient ? advancePlaybackPatiently() : advancePlayback();
    else
        isPatient ? advanceMicrophonePatiently() : advanceMicrophone();
}

// The button to hear it again is off while it plays.
void Driver::advancePlaybackPatiently()
{
    auto *view = openDialog<AudioPlaybackTestView>();
    if (view == nullptr)
        return;
    const bool isPlaying =
        !view->findChild<QPushButton *>(QStringLiteral("audio_playback_test_numpad_repeat_button"))->isEnabled();
    if (isPlaying)
        stage_ = 1;
    else if (stage_ == 1) {
        stage_ = 2;
        view->ZeroInputButtonClicked();
        view->FirstInputButtonClicked();
        view->SecondInputButtonClicked();
    }
}

void Driver::advanceMicrophonePatiently()
{
    auto *dialog = openDialog<InteractionDialog>();
    if (dialog == nullptr)
        return;
    if (auto *select = pageOf<SelectDevice>(*dialog); select->isVisible())
        select->onBtnNextClicked();
    else if (auto *record = pageOf<RecordAudio>(*dialog); record->isVisible() && stage_++ == 0)
        record->OnBtnRecordClicked();
    else if (auto *play = pageOf<PlayAudio>(*dialog);
             play->isVisible() && play->findChild<QPushButton *>(QStringLiteral("microphone_test_next_button"))->isEnabled())
        play->OnBtnNextClicked();
}

// Three digits, each heard, then typed. Every call is a slot that a timer or a button calls.
void Driver::advancePlayback()
{
    AudioPlaybackTestView *view = nullptr;
    {
        const refusing_allocator::Pause pause;
        view = openDialog<AudioPlaybackTestView>();
    }
    if (view == nullptr)
        return;
    if (stage_ < 3) {
        view->PlayAudio();
        view->CheckAudioIsPlaying();
    } else if (stage_ == 3) {
        view->PlayAudio();
    } else if (stage_ == 4) {
        view->ZeroInputButtonClicked();
        view->OnBackspaceButtonClicked();
        view->CheckSystemEventAbortion();
    } else if (stage_ == 5) {
        view->ZeroInputButtonClicked();
    } else if (stage_ == 6) {
        view->FirstInputButtonClicked();
    } else {
        view->SecondInputButtonClicked();
    }
    ++stage_;
}

void Driver::advanceMicrophone()
{
    InteractionDialog *dialog = nullptr;
    SelectDevice *select = nullptr;
    RecordAudio *record = nullptr;
    PlayAudio *play = nullptr;
    {
        const refusing_allocator::Pause pause;
        dialog = openDialog<InteractionDialog>();
        if (dialog == nullptr)
            return;
        select = pageOf<SelectDevice>(*dialog);
        record = pageOf<RecordAudio>(*dialog);
        play = pageOf<PlayAudio>(*dialog);
    }
    if (select->isVisible()) {
        dialog->CheckSystemEvent();
        select->onBtnNextClicked();
    } else if (record->isVisible()) {
        if (stage_++ == 0)
            record->OnBtnRecordClicked();
        else
            record->OnTimerTick(); // a busy job is told to stop after five
    } else if (play->isVisible() && !play->job().isBusy() && stage_ >= 1000) {
        play->OnBtnNextClicked();
    } else if (play->isVisible()) {
        const bool wasBusy = play->job().isBusy();
        play->OnTimerTick();
        stage_ = wasBusy ? stage_ : 1000;
    }
}

void Driver::giveUp()
{
    const refusing_allocator::Pause pause;
    outcome_.isStuck = true;
    if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
        dialog->done(99);
}

std::string leftovers(std::size_t threadCount, LooseWidgets loose)
{
    QElapsedTimer waited;
    waited.start();
    while (process_facts::now().threads > threadCount && waited.elapsed() < threadEndLimit)
        QTest::qWait(5);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    std::string text;
    if (const std::size_t threads = process_facts::now().threads; threads > threadCount)
        text += std::to_string(threads - threadCount) + " threads ";
    if (audio::abandonedWorkerCount() != 0)
        text += "an abandoned worker ";
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        const bool isLoose = qstrcmp(widget->metaObject()->className(), "QWidget") == 0 && widget->isHidden();
        if (isLoose && loose == LooseWidgets::areDeleted)
            delete widget;
        else
            text += "a window of " + std::string(widget->metaObject()->className()) + ' ';
    }
    return text;
}

} // namespace driven_runs
