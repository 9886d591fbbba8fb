// SPDX-License-Identifier: Apache-2.0
// Ends the microphone dialog at moments of real recordings and playbacks, in all the ways that there are.
#include "tests/microphone_interactive_test.h"

#include "audio/abandoned_workers.h"
#include "audio/audio_component.h"
#include "audio/sdl_api.h"
#include "audio/sound_driver.h"
#include "autotests/tests/microphone_host.h"
#include "autotests/tests/sound_truth.h"
#include "autotests/views/page_probe.h"
#include "views/play_audio.h"
#include "views/record_audio.h"
#include "views/select_device.h"

#include <QCloseEvent>
#include <QElapsedTimer>
#include <QEvent>
#include <QObject>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>

#include <atomic>
#include <utility>

using namespace ostra;
using page_probe::named;

namespace {

// A worker looks at its flag every 500 ms; what the sound library takes to close is measured. The rest is for busy machines.
constexpr int closeLimit = 600 + 1000; // ms
std::atomic<qint64> closingTime = 0;   // ms
decltype(audio::SdlApi::closeDevice) realClose = nullptr;

void measureClose(SDL_AudioDeviceID id)
{
    QElapsedTimer timer;
    timer.start();
    realClose(id);
    closingTime += timer.elapsed();
}

enum class Phase { choosing, recording, playing };
enum class End { closeButton, escape, pageButton, event, program, windowManager, watcher, quit };

void begin(InteractionDialog &dialog, Phase phase)
{
    if (phase == Phase::choosing)
        return;
    // By page: the three have buttons of the same names.
    named<QPushButton>(*dialog.findChild<SelectDevice *>(), "microphone_test_next_button")->click();
    auto *record = dialog.findChild<RecordAudio *>();
    named<QPushButton>(*record, "microphone_test_record_button")->click();
    if (phase == Phase::recording)
        return;
    for (int tick = 0; tick < 6; ++tick)
        record->OnTimerTick();
    QTRY_VERIFY_WITH_TIMEOUT(!record->job().isBusy(), 10000);
    record->OnTimerTick();
    QVERIFY(dialog.findChild<PlayAudio *>()->isVisible());
}

void end(MicrophoneHost &host, InteractionDialog &dialog, End kind)
{
    QCloseEvent close;
    switch (kind) {
    case End::closeButton:
        named<QPushButton>(dialog, "microphone_test_header_close")->click();
        return;
    case End::escape:
        QTest::keyClick(&dialog, Qt::Key_Escape);
        return;
    case End::pageButton:
        named<QPushButton>(*named<QStackedWidget>(dialog, "microphone_test_popups_space")->currentWidget(),
                           "microphone_test_cancel_button")
            ->click();
        return;
    case End::event:
        host.flags = 1;
        dialog.CheckSystemEvent();
        return;
    case End::program:
        dialog.close();
        return;
    case End::windowManager:
        page_probe::sendSpontaneously(dialog, close);
        return;
    case End::watcher:
        emit dialog.finished(0);
        host.wantsToStop = true;
        return;
    case End::quit:
        QCoreApplication::quit();
        return;
    }
}

} // namespace
Q_DECLARE_METATYPE(Phase)
Q_DECLARE_METATYPE(End)

class TestCloseAnywhereSound : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void leavesNothingBehind_data();
    void leavesNothingBehind();
};

void TestCloseAnywhereSound::initTestCase()
{
    audio::sdl().setEnvironment("SDL_AUDIODRIVER", audio::soundDriverName(), 1);
    QCOMPARE(audio::sdl().initSubSystem(SDL_INIT_AUDIO), 0);
    realClose = std::exchange(audio::sdl().closeDevice, &measureClose);
    sound_truth::turnDown();
}

void TestCloseAnywhereSound::cleanupTestCase()
{
    QCOMPARE(audio::abandonedWorkerCount(), 0);
    audio::quitSoundLibrary();
}

void TestCloseAnywhereSound::leavesNothingBehind_data()
{
    QTest::addColumn<Phase>("phase");
    QTest::addColumn<int>("moment");
    QTest::addColumn<End>("kind");
    const auto row = [](const char *name, Phase phase, int moment, End kind) {
        QTest::newRow(name) << phase << moment << kind;
    };
    row("choosing, close button", Phase::choosing, 0, End::closeButton);
    row("recording at once, escape", Phase::recording, 0, End::escape);
    row("recording at once, quit", Phase::recording, 0, End::quit);
    row("recording, 20 ms, close button", Phase::recording, 20, End::closeButton);
    row("recording, 150 ms, event", Phase::recording, 150, End::event);
    row("recording, 480 ms, program", Phase::recording, 480, End::program);
    row("recording, 510 ms, window manager", Phase::recording, 510, End::windowManager);
    row("recording, 495 ms, quit", Phase::recording, 495, End::quit);
    row("recording, 990 ms, page button", Phase::recording, 990, End::pageButton);
    row("recording, 1010 ms, watcher", Phase::recording, 1010, End::watcher);
    row("recording, 1620 ms, close button", Phase::recording, 1620, End::closeButton);
    row("playing at once, close button", Phase::playing, 0, End::closeButton);
    row("playing, 70 ms, escape", Phase::playing, 70, End::escape);
    row("playing, 300 ms, quit", Phase::playing, 300, End::quit);
    row("playing, 40 ms, watcher", Phase::playing, 40, End::watcher);
    row("playing, 505 ms, page button", Phase::playing, 505, End::pageButton);
    row("playing, 700 ms, event", Phase::playing, 700, End::event);
    row("playing, 850 ms, program", Phase::playing, 850, End::program);
    row("playing, 1300 ms, window manager", Phase::playing, 1300, End::windowManager);
    row("playing, 1490 ms, escape", Phase::playing, 1490, End::escape);
}

void TestCloseAnywhereSound::leavesNothingBehind()
{
    QFETCH(const Phase, phase);
    QFETCH(const int, moment);
    QFETCH(const End, kind);
    audio::AudioComponent device(SDL_GetAudioDeviceName(0, 0));
    const std::string levels = sound_truth::levels();
    const int streamCount = sound_truth::openStreamCount(); // the card keeps itself awake
    int streamCountAtEnd = 0;
    MicrophoneHost host;
    host.device = &device;
    QElapsedTimer sinceEnd;
    host.action = [&](InteractionDialog &dialog) {
        begin(dialog, phase);
        QTimer::singleShot(moment, &dialog, [&] {
            streamCountAtEnd = sound_truth::openStreamCount();
            closingTime = 0;
            sinceEnd.start();
            end(host, dialog, kind);
        });
    };
    MicrophoneInteractiveTest test(EntityId(15, 1, 2));
    std::uint32_t code = 99;
    QTimer::singleShot(0, this, [&] {
        code = test.run(&host);
        QCoreApplication::exit(); // of the loop below, where the application has not ended it
    });
    QCoreApplication::exec(); // an application that runs a loop can be ended
    const qint64 took = sinceEnd.elapsed();
    QVERIFY2(sinceEnd.isValid(), host.calls.join("\n").constData());
    const bool isPass = kind == End::program; // a program may close it
    QCOMPARE(code, isPass ? 0U : 4U);
    const int tickWait = kind == End::pageButton ? 1000 : 0; // the page waits for its next tick
    QVERIFY2(took < closeLimit + tickWait + closingTime, qPrintable(QString::number(took)));
    QVERIFY(MicrophoneHost::dialog() == nullptr);
    QCOMPARE(audio::abandonedWorkerCount(), 0);
    if (sound_truth::canTell() && moment >= 150)
        QCOMPARE(streamCountAtEnd, streamCount + 1);
    QCOMPARE(sound_truth::openStreamCount(), streamCount);
    QCOMPARE(sound_truth::levels(), levels);
    qInfo("ended in %lld ms, %lld of them in the sound library", static_cast<long long>(took),
          static_cast<long long>(closingTime));
}

QTEST_MAIN(TestCloseAnywhereSound)
#include "tst_close_anywhere_sound.moc"
