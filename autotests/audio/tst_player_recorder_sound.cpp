// SPDX-License-Identifier: Apache-2.0
// Against a real sound server with the sink "Speakers" and the microphone "Mic", which hears it. The sink's monitor is listed
// as a microphone too.
#include "audio/audio_devices.h"
#include "audio/sdl_api.h"
#include "audio/sound_driver.h"
#include "autotests/audio/sound_job.h"
#include "autotests/audio/tone.h"

#include <QObject>
#include <QTest>

#include <thread>

using namespace ostra::audio;

namespace {

constexpr int bound = 15000; // ms; five times the longest job
constexpr double pitch = 440;
constexpr double otherPitch = 1000;
constexpr std::chrono::milliseconds recordingTime(2500);
constexpr double enoughSeconds = 1.2; // of the tone in such a recording; starting and stopping cost the rest

const QString speakers = QStringLiteral("Speakers");
const QString microphone = QStringLiteral("Mic");
const QString monitor = QStringLiteral("Monitor of Speakers");

} // namespace

class TestPlayerRecorderSound : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { SDL_Quit(); }
    void listsTheDevices();
    void recordsWhatAnotherEnginePlays();
    void whatWasRecordedIsHeardWhenItIsPlayed();
    void recordsTwiceOnOneEngine();
    void stopBeforeTheStartEndsWithSuccess();
    void anUnknownNameIsNoOtherDevice();

private:
    // Records while `played` plays; null when anything but success was reported.
    static std::shared_ptr<AudioRecording> hear(std::shared_ptr<AudioRecording> played, const QString &device);

    std::shared_ptr<AudioRecording> recording_;
};

void TestPlayerRecorderSound::initTestCase()
{
    SDL_setenv("SDL_AUDIODRIVER", soundDriverName(), 1);
    QCOMPARE(SDL_InitSubSystem(SDL_INIT_AUDIO), 0);
}

void TestPlayerRecorderSound::listsTheDevices()
{
    QVERIFY(hasAudioDevices(true));
    QVERIFY(hasAudioDevices(false));
    QVERIFY(isAudioDeviceConnected("Mic", true));
    QVERIFY(isAudioDeviceConnected("Speakers", false));
    QVERIFY(!isAudioDeviceConnected("Mic", false));
    QVERIFY(!isAudioDeviceConnected("mic", true));
}

std::shared_ptr<AudioRecording> TestPlayerRecorderSound::hear(std::shared_ptr<AudioRecording> played, const QString &device)
{
    const auto slot = std::make_shared<RecordingSlot>();
    PlayJob player(std::move(played), speakers);
    RecordJob recorder(slot, device, 2);
    player.stopAfter(recordingTime);
    recorder.stopAfter(recordingTime);
    const auto isDone = [&] { return player.isOver() && recorder.isOver() && player.status() && recorder.status(); };
    if (!QTest::qWaitFor(isDone, bound))
        return nullptr;
    return player.status() == 0 && recorder.status() == 0 ? slot->recording : nullptr;
}

void TestPlayerRecorderSound::recordsWhatAnotherEnginePlays()
{
    recording_ = hear(tone::make(pitch, 6), microphone);
    QVERIFY(recording_);
    QCOMPARE(recording_->byteCount, 3U * 352800U);
    const double heard = tone::heardSeconds(*recording_, pitch);
    QVERIFY2(heard >= enoughSeconds, qPrintable(QString::number(heard)));
    QCOMPARE(tone::heardSeconds(*recording_, otherPitch), 0.0);
    qInfo("%.1f s of the tone recorded", heard);
}

void TestPlayerRecorderSound::whatWasRecordedIsHeardWhenItIsPlayed()
{
    QVERIFY(recording_);
    const auto again = hear(recording_, monitor);
    QVERIFY(again);
    const double heard = tone::heardSeconds(*again, pitch);
    QVERIFY2(heard >= enoughSeconds - 0.5, qPrintable(QString::number(heard)));
    qInfo("%.1f s of the tone heard again", heard);
}

void TestPlayerRecorderSound::recordsTwiceOnOneEngine()
{
    const StopFlag flag = makeStopFlag();
    PlayJob player(tone::make(pitch, 10), speakers);
    std::unique_ptr<AudioRecording> recordings[2];
    std::atomic<int> done = 0;
    std::thread thread([&] {
        AudioRecorder recorder(flag);
        for (auto &recording : recordings) {
            flag->store(true);
            recording = recorder.record("Mic", 2);
            ++done;
        }
    });
    QTimer length;
    connect(&length, &QTimer::timeout, this, [&flag] { flag->store(false); });
    length.start(recordingTime);
    const bool areDone = QTest::qWaitFor([&done] { return done == 2; }, bound);
    thread.join();
    QVERIFY(areDone);
    for (const auto &recording : recordings)
        QVERIFY(tone::heardSeconds(*recording, pitch) >= enoughSeconds);
}

void TestPlayerRecorderSound::stopBeforeTheStartEndsWithSuccess()
{
    const auto slot = std::make_shared<RecordingSlot>();
    RecordJob recorder(slot, microphone, 5, std::make_shared<std::atomic<bool>>(false));
    PlayJob player(tone::make(pitch, 1), speakers, std::make_shared<std::atomic<bool>>(false));
    QTRY_VERIFY_WITH_TIMEOUT(recorder.status() && player.status(), bound);
    QCOMPARE(recorder.status(), 0);
    QCOMPARE(player.status(), 0);
    QCOMPARE(slot->recording->byteCount, 2116800U);
}

void TestPlayerRecorderSound::anUnknownNameIsNoOtherDevice()
{
    const auto slot = std::make_shared<RecordingSlot>();
    RecordJob recorder(slot, QStringLiteral("Mic 2"), 5);
    PlayJob player(tone::make(pitch, 1), QStringLiteral("speakers"));
    QTRY_VERIFY_WITH_TIMEOUT(recorder.status() && player.status(), bound);
    QCOMPARE(recorder.status(), 38);
    QCOMPARE(player.status(), 38);
    QVERIFY(!slot->recording);
}

QTEST_GUILESS_MAIN(TestPlayerRecorderSound)
#include "tst_player_recorder_sound.moc"
