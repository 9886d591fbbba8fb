// SPDX-License-Identifier: Apache-2.0
// Against a real sound server with the sink "Speakers" and the microphone "Mic", both of which are gone at the end: the loss of
// a device while it is in use.
#include "audio/audio_devices.h"
#include "audio/sdl_api.h"
#include "audio/sound_driver.h"
#include "autotests/audio/sound_job.h"
#include "autotests/audio/tone.h"

#include <QElapsedTimer>
#include <QObject>
#include <QProcess>
#include <QTest>

using namespace ostra::audio;

namespace {

constexpr int bound = 15000;      // ms; for what the test waits for by the way
constexpr qint64 noticed = 4000;  // ms; the device is looked at every 500 ms
constexpr int runningTime = 1200; // ms; long enough for the device to have given or taken sound

// Not waited for: a Windows program cannot wait for a program of the system below it. The loss itself tells that it worked.
bool unload(const char *module)
{
    return QProcess::startDetached(QStringLiteral(PACTL), {QStringLiteral("unload-module"), QLatin1String(module)});
}

} // namespace

class TestDeviceLossSound : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { SDL_Quit(); }
    void aLostMicrophoneEndsTheRecording();
    void aLostLoudspeakerEndsThePlayback();
};

void TestDeviceLossSound::initTestCase()
{
    SDL_setenv("SDL_AUDIODRIVER", soundDriverName(), 1);
    QCOMPARE(SDL_InitSubSystem(SDL_INIT_AUDIO), 0);
}

void TestDeviceLossSound::aLostMicrophoneEndsTheRecording()
{
    const auto slot = std::make_shared<RecordingSlot>();
    RecordJob recorder(slot, QStringLiteral("Mic"), 5);
    QVERIFY(!QTest::qWaitFor([&] { return recorder.status().has_value(); }, runningTime));
    QVERIFY(unload("module-remap-source"));
    QElapsedTimer timer;
    timer.start();
    QTRY_VERIFY_WITH_TIMEOUT(recorder.status(), bound);
    const qint64 elapsed = timer.elapsed();
    QCOMPARE(recorder.status(), 38);
    QVERIFY2(elapsed < noticed, qPrintable(QString::number(elapsed)));
    QVERIFY(!slot->recording);
    QTRY_VERIFY_WITH_TIMEOUT(recorder.isOver(), bound);
    qInfo("noticed after %lld ms", static_cast<long long>(elapsed));
}

void TestDeviceLossSound::aLostLoudspeakerEndsThePlayback()
{
    PlayJob player(tone::make(440, 8), QStringLiteral("Speakers"));
    QVERIFY(!QTest::qWaitFor([&] { return player.status().has_value(); }, runningTime));
    QVERIFY(unload("module-null-sink"));
    QElapsedTimer timer;
    timer.start();
    QTRY_VERIFY_WITH_TIMEOUT(player.status(), bound);
    const qint64 elapsed = timer.elapsed();
    QCOMPARE(player.status(), 38);
    QVERIFY2(elapsed < noticed, qPrintable(QString::number(elapsed)));
    QTRY_VERIFY_WITH_TIMEOUT(player.isOver(), bound);
    qInfo("noticed after %lld ms", static_cast<long long>(elapsed));
}

QTEST_GUILESS_MAIN(TestDeviceLossSound)
#include "tst_device_loss_sound.moc"
