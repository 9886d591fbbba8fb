// SPDX-License-Identifier: Apache-2.0
#include "audio/audio_player.h"
#include "autotests/support/fake_sdl.h"

#include <QObject>
#include <QTest>

#include <algorithm>
#include <ios>
#include <numeric>
#include <string_view>
#include <typeinfo>

using namespace ostra::audio;
using Bytes = std::vector<std::uint8_t>;
using Calls = std::vector<std::string>;

namespace {

constexpr std::string_view deviceGone = "Device was disconnected"; // the standard library adds the error's own text
constexpr std::uint8_t mark = 0xAA;                                // what nobody wrote

AudioRecording makeRecording(std::uint32_t byteCount, std::uint16_t seconds = 0)
{
    AudioRecording recording;
    recording.samples = std::make_unique<std::uint8_t[]>(byteCount);
    std::iota(recording.samples.get(), recording.samples.get() + byteCount, std::uint8_t{1});
    recording.byteCount = byteCount;
    recording.seconds = seconds;
    recording.frequency = 8000;
    recording.format = AUDIO_S16LSB;
    recording.channels = 1;
    recording.framesPerCallback = 512;
    return recording;
}

} // namespace

class TestAudioPlayer : public QObject {
    Q_OBJECT

private slots:
    void opensWithTheRecordingsFormat();
    void playsEverythingButTheLastByte();
    void playsACopy();
    void leavesTheStreamAsItWasAfterTheEnd();
    void playsNothingOfAnEmptyRecording();
    void waitsInHalfSecondsAndPausesBeforeItReturns();
    void endsAtTheFirstCheckWhenStoppedBeforeTheStart();
    void endsWhenTheDeviceStopsPlaying();
    void refusesATooShortRecordingAfterOpening_data();
    void refusesATooShortRecordingAfterOpening();
    void acceptsARecordingOfExactlyItsLength();
    void reckonsTheLengthInThirtyTwoBits();
    void failsWhenTheDeviceVanishes();
    void failsWhenTheDeviceCannotBeOpened();
    void reportsATooShortRecordingEvenWithoutDevice();
    void keepsTheDeviceOpenUntilItDies();
    void closesTheDeviceBeforeItOpensTheNext();
    void aLateCallbackFindsNothingToPlay();

private:
    static void stopAtFirstDelay(
        FakeSdl &fake, const StopFlag &flag, std::function<void()> meanwhile = [] {});
    static void verifyDisconnected(AudioPlayer &player);
};

void TestAudioPlayer::stopAtFirstDelay(FakeSdl &fake, const StopFlag &flag, std::function<void()> meanwhile)
{
    fake.tracksStatus = true;
    fake.onCall = [flag, meanwhile = std::move(meanwhile)](const std::string &call) {
        if (call != "delay 500")
            return;
        meanwhile();
        flag->store(false);
    };
}

void TestAudioPlayer::verifyDisconnected(AudioPlayer &player)
{
    try {
        player.play("Speakers", makeRecording(16));
        QFAIL("nothing was thrown");
    } catch (const std::ios_base::failure &failure) {
        QVERIFY(std::string_view(failure.what()).starts_with(deviceGone));
        QCOMPARE(failure.code().value(), 1);
    }
}

void TestAudioPlayer::opensWithTheRecordingsFormat()
{
    FakeSdl fake;
    fake.tracksStatus = true;
    AudioPlayer player(std::make_shared<std::atomic<bool>>(false));
    player.play("Kopfh\xC3\xB6rer", makeRecording(16));
    QCOMPARE(fake.calls.front(), std::string("open Kopfh\xC3\xB6rer 0 obtained"));
    QCOMPARE(fake.openedSpec.freq, 8000);
    QCOMPARE(fake.openedSpec.format, SDL_AudioFormat(AUDIO_S16LSB));
    QCOMPARE(int(fake.openedSpec.channels), 1);
    QCOMPARE(int(fake.openedSpec.samples), 512);
}

void TestAudioPlayer::playsEverythingButTheLastByte()
{
    FakeSdl fake;
    const StopFlag flag = makeStopFlag();
    Bytes heard(12, mark);
    Bytes heardLater(12, mark);
    stopAtFirstDelay(fake, flag, [&] {
        fake.callBack(heard);
        fake.callBack(heardLater);
    });
    AudioPlayer player(flag);
    player.play("Speakers", makeRecording(16));
    QCOMPARE(heard, (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
    QCOMPARE(heardLater, (Bytes{13, 14, 15, mark, mark, mark, mark, mark, mark, mark, mark, mark}));
}

void TestAudioPlayer::playsACopy()
{
    FakeSdl fake;
    const StopFlag flag = makeStopFlag();
    AudioRecording recording = makeRecording(16);
    Bytes heard(4, mark);
    stopAtFirstDelay(fake, flag, [&] {
        recording.samples.reset();
        fake.callBack(heard);
    });
    AudioPlayer player(flag);
    player.play("Speakers", recording);
    QCOMPARE(heard, (Bytes{1, 2, 3, 4}));
}

void TestAudioPlayer::leavesTheStreamAsItWasAfterTheEnd()
{
    FakeSdl fake;
    const StopFlag flag = makeStopFlag();
    Bytes heard(16, mark);
    stopAtFirstDelay(fake, flag, [&] {
        Bytes everything(16);
        fake.callBack(everything);
        fake.callBack(heard);
    });
    AudioPlayer player(flag);
    player.play("Speakers", makeRecording(16));
    QCOMPARE(heard, Bytes(16, mark));
}

void TestAudioPlayer::playsNothingOfAnEmptyRecording()
{
    FakeSdl fake;
    const StopFlag flag = makeStopFlag();
    Bytes heard(16, mark);
    stopAtFirstDelay(fake, flag, [&] { fake.callBack(heard); });
    AudioPlayer player(flag);
    player.play("Speakers", makeRecording(0));
    QCOMPARE(heard, Bytes(16, mark));
}

void TestAudioPlayer::waitsInHalfSecondsAndPausesBeforeItReturns()
{
    FakeSdl fake;
    fake.tracksStatus = true;
    const StopFlag flag = makeStopFlag();
    int steps = 0;
    fake.onCall = [&](const std::string &call) {
        if (call == "delay 500" && ++steps == 2)
            flag->store(false);
    };
    AudioPlayer player(flag);
    player.play("Speakers", makeRecording(16)); // long over; only the flag ends it
    std::erase(fake.calls, "status 2");
    QCOMPARE(fake.calls, (Calls{"open Speakers 0 obtained", "pause 2 0", "delay 500", "delay 500", "pause 2 1"}));
}

void TestAudioPlayer::endsAtTheFirstCheckWhenStoppedBeforeTheStart()
{
    FakeSdl fake;
    fake.tracksStatus = true;
    AudioPlayer player(std::make_shared<std::atomic<bool>>(false));
    player.play("Speakers", makeRecording(16));
    QCOMPARE(fake.calls, (Calls{"open Speakers 0 obtained", "pause 2 0", "status 2", "status 2", "pause 2 1", "status 2"}));
}

void TestAudioPlayer::endsWhenTheDeviceStopsPlaying()
{
    FakeSdl fake;
    fake.tracksStatus = true;
    fake.onCall = [&fake](const std::string &call) {
        if (call == "delay 500")
            fake.status = SDL_AUDIO_PAUSED;
    };
    AudioPlayer player(makeStopFlag());
    player.play("Speakers", makeRecording(16));
    QCOMPARE(fake.count("delay"), 1);
}

void TestAudioPlayer::refusesATooShortRecordingAfterOpening_data()
{
    QTest::addColumn<quint32>("byteCount");
    QTest::addColumn<quint16>("seconds");
    QTest::newRow("one byte missing") << 15999U << quint16{1};
    QTest::newRow("empty") << 0U << quint16{5};
    QTest::newRow("as long as 12173 s of float stereo come out") << 19904U << quint16{12173};
}

void TestAudioPlayer::refusesATooShortRecordingAfterOpening()
{
    QFETCH(const quint32, byteCount);
    QFETCH(const quint16, seconds);
    FakeSdl fake;
    fake.tracksStatus = true;
    AudioPlayer player(makeStopFlag());
    try {
        player.play("Speakers", makeRecording(byteCount, seconds));
        QFAIL("nothing was thrown");
    } catch (const std::exception &failure) {
        QVERIFY(typeid(failure) == typeid(std::exception));
    }
    QCOMPARE(fake.calls, (Calls{"open Speakers 0 obtained"})); // and never started
    Bytes heard(16, mark);
    fake.callBack(heard);
    QCOMPARE(heard, Bytes(16, mark));
}

void TestAudioPlayer::acceptsARecordingOfExactlyItsLength()
{
    FakeSdl fake;
    const StopFlag flag = makeStopFlag();
    stopAtFirstDelay(fake, flag);
    AudioPlayer player(flag);
    player.play("Speakers", makeRecording(16000, 1));
    QCOMPARE(fake.count("delay"), 1);
}

void TestAudioPlayer::reckonsTheLengthInThirtyTwoBits()
{
    FakeSdl fake;
    const StopFlag flag = makeStopFlag();
    stopAtFirstDelay(fake, flag);
    AudioRecording recording = makeRecording(19904, 12174); // 12174 x 44100 x 8 = 2^32 + 19904
    recording.frequency = 44100;
    recording.format = AUDIO_F32LSB;
    recording.channels = 2;
    AudioPlayer player(flag);
    player.play("Speakers", recording);
    QCOMPARE(fake.count("delay"), 1);
}

void TestAudioPlayer::failsWhenTheDeviceVanishes()
{
    FakeSdl fake;
    fake.tracksStatus = true;
    fake.onCall = [&fake](const std::string &call) {
        if (call == "delay 500") {
            fake.tracksStatus = false;
            fake.status = SDL_AUDIO_STOPPED;
        }
    };
    AudioPlayer player(makeStopFlag());
    verifyDisconnected(player);
    QCOMPARE(fake.count("delay"), 1);
    QCOMPARE(fake.count("pause 2 1"), 1);
    Bytes heard(16, mark);
    fake.callBack(heard); // a lost device goes on calling
    QCOMPARE(heard, Bytes(16, mark));
}

void TestAudioPlayer::failsWhenTheDeviceCannotBeOpened()
{
    FakeSdl fake;
    fake.nextDeviceId = 0;
    fake.status = SDL_AUDIO_PLAYING;
    {
        AudioPlayer player(makeStopFlag());
        verifyDisconnected(player);
    }
    QCOMPARE(fake.calls, (Calls{"open Speakers 0 obtained"}));
}

void TestAudioPlayer::reportsATooShortRecordingEvenWithoutDevice()
{
    FakeSdl fake;
    fake.nextDeviceId = 0;
    AudioPlayer player(makeStopFlag());
    try {
        player.play("Speakers", makeRecording(16, 1));
        QFAIL("nothing was thrown");
    } catch (const std::exception &failure) {
        QVERIFY(typeid(failure) == typeid(std::exception));
    }
}

void TestAudioPlayer::keepsTheDeviceOpenUntilItDies()
{
    FakeSdl fake;
    const StopFlag flag = makeStopFlag();
    stopAtFirstDelay(fake, flag);
    {
        AudioPlayer player(flag);
        player.play("Speakers", makeRecording(16));
        QCOMPARE(fake.count("close"), 0);
        fake.calls.clear();
    }
    QCOMPARE(fake.calls, (Calls{"pause 2 1", "close 2"}));
}

void TestAudioPlayer::closesTheDeviceBeforeItOpensTheNext()
{
    FakeSdl fake;
    const StopFlag flag = makeStopFlag();
    stopAtFirstDelay(fake, flag);
    AudioPlayer player(flag);
    player.play("Speakers", makeRecording(16));
    fake.calls.clear();
    fake.nextDeviceId = 3;
    flag->store(true);
    player.play("Headphones", makeRecording(16));
    std::erase_if(fake.calls, [](const std::string &call) { return call.starts_with("status"); });
    QCOMPARE(fake.calls, (Calls{"pause 2 1", "close 2", "open Headphones 0 obtained", "pause 3 0", "delay 500", "pause 3 1"}));
}

void TestAudioPlayer::aLateCallbackFindsNothingToPlay()
{
    FakeSdl fake;
    const StopFlag flag = makeStopFlag();
    stopAtFirstDelay(fake, flag);
    AudioPlayer player(flag);
    player.play("Speakers", makeRecording(16));
    Bytes heard(16, mark);
    fake.callBack(heard); // would be a read of freed memory
    QCOMPARE(heard, Bytes(16, mark));
}

QTEST_GUILESS_MAIN(TestAudioPlayer)
#include "tst_audio_player.moc"
