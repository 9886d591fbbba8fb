// SPDX-License-Identifier: Apache-2.0
#include "audio/audio_recorder.h"
#include "autotests/support/fake_sdl.h"

#include <QObject>
#include <QTest>

#include <algorithm>
#include <ios>
#include <string_view>

using namespace ostra::audio;
using Bytes = std::vector<std::uint8_t>;
using Calls = std::vector<std::string>;

namespace {

constexpr std::string_view deviceGone = "Device was disconnected"; // the standard library adds the error's own text

Bytes contentOf(const AudioRecording &recording)
{
    return {recording.samples.get(), recording.samples.get() + recording.byteCount};
}

} // namespace

class TestAudioRecorder : public QObject {
    Q_OBJECT

private slots:
    void asksForFloatStereo();
    void holdsOneSecondMoreThanAskedFor_data();
    void holdsOneSecondMoreThanAskedFor();
    void describesTheRecording();
    void takesTheObtainedFormatOver();
    void fillsTheUnheardPartWithTheObtainedSilence();
    void keepsTheHeardBytesInOrder();
    void survivesAMicrophoneWithoutRoomForItsSound();
    void waitsInHalfSecondsAndPausesBeforeItReturns();
    void endsAtTheFirstCheckWhenStoppedBeforeTheStart();
    void endsWhenTheDeviceStopsPlaying();
    void failsWhenTheDeviceVanishes();
    void failsWhenTheDeviceVanishesWhileItIsStopped();
    void failsWhenTheDeviceCannotBeOpened();
    void keepsTheFormatWhenTheDeviceCannotBeOpened();
    void keepsTheDeviceOpenUntilItDies();
    void recordsAgainOnTheOpenDevice();
    void opensAgainAfterAFailedOpening();
    void aLateCallbackFindsNothingToWriteTo_data();
    void aLateCallbackFindsNothingToWriteTo();

private:
    // Stops the recording at its first half second, after `meanwhile`.
    static void stopAtFirstDelay(
        FakeSdl &fake, const StopFlag &flag, std::function<void()> meanwhile = [] {});
    static void verifyDisconnected(AudioRecorder &recorder);
};

void TestAudioRecorder::stopAtFirstDelay(FakeSdl &fake, const StopFlag &flag, std::function<void()> meanwhile)
{
    fake.tracksStatus = true;
    fake.onCall = [flag, meanwhile = std::move(meanwhile)](const std::string &call) {
        if (call != "delay 500")
            return;
        meanwhile();
        flag->store(false);
    };
}

void TestAudioRecorder::verifyDisconnected(AudioRecorder &recorder)
{
    try {
        recorder.record("Mic", 5);
        QFAIL("nothing was thrown");
    } catch (const std::ios_base::failure &failure) {
        QVERIFY(std::string_view(failure.what()).starts_with(deviceGone));
        QVERIFY(failure.code() == std::io_errc::stream);
        QCOMPARE(failure.code().value(), 1);
    }
}

void TestAudioRecorder::asksForFloatStereo()
{
    FakeSdl fake;
    AudioRecorder recorder(std::make_shared<std::atomic<bool>>(false));
    fake.tracksStatus = true;
    recorder.record("Mikrofon \xC3\x9C", 5);
    QCOMPARE(fake.calls.front(), std::string("open Mikrofon \xC3\x9C 1 obtained")); // and no change allowed
    QCOMPARE(fake.openedSpec.freq, 44100);
    QCOMPARE(int(fake.openedSpec.format), 0x8120);
    QCOMPARE(int(fake.openedSpec.channels), 2);
    QCOMPARE(int(fake.openedSpec.samples), 4096);
    QVERIFY(fake.openedSpec.callback != nullptr);
    QVERIFY(fake.openedSpec.userdata != nullptr);
}

void TestAudioRecorder::holdsOneSecondMoreThanAskedFor_data()
{
    QTest::addColumn<quint16>("seconds");
    QTest::addColumn<quint32>("byteCount");
    QTest::newRow("0") << quint16{0} << 352800U;
    QTest::newRow("5") << quint16{5} << 2116800U;
    QTest::newRow("first beyond 32 bits") << quint16{12173} << 19904U;
    QTest::newRow("65535") << quint16{65535} << 0U;
}

void TestAudioRecorder::holdsOneSecondMoreThanAskedFor()
{
    QFETCH(const quint16, seconds);
    FakeSdl fake;
    const StopFlag flag = makeStopFlag();
    stopAtFirstDelay(fake, flag);
    AudioRecorder recorder(flag);
    const auto recording = recorder.record("Mic", seconds);
    QTEST(recording->byteCount, "byteCount");
    QCOMPARE(recording->seconds, seconds);
    QVERIFY(contentOf(*recording) == Bytes(recording->byteCount, 0));
}

void TestAudioRecorder::describesTheRecording()
{
    FakeSdl fake;
    const StopFlag flag = makeStopFlag();
    stopAtFirstDelay(fake, flag);
    AudioRecorder recorder(flag);
    const auto recording = recorder.record("Mic", 5);
    QCOMPARE(recording->frequency, quint16{44100});
    QCOMPARE(recording->format, quint16{AUDIO_F32LSB});
    QCOMPARE(recording->channels, quint8{2});
    QCOMPARE(recording->framesPerCallback, quint16{4096});
}

void TestAudioRecorder::takesTheObtainedFormatOver()
{
    FakeSdl fake;
    SDL_AudioSpec obtained{};
    obtained.freq = 96000;
    obtained.format = AUDIO_S16LSB;
    obtained.channels = 1;
    obtained.samples = 512;
    fake.obtainedSpec = obtained;
    const StopFlag flag = makeStopFlag();
    stopAtFirstDelay(fake, flag);
    AudioRecorder recorder(flag);
    const auto recording = recorder.record("Mic", 1);
    QCOMPARE(recording->byteCount, 2U * 352800U); // sized before the opening
    QCOMPARE(recording->frequency, quint16{30464});
    QCOMPARE(recording->format, quint16{AUDIO_S16LSB});
    QCOMPARE(recording->channels, quint8{1});
    QCOMPARE(recording->framesPerCallback, quint16{512});
    flag->store(true);
    QCOMPARE(recorder.record("Mic", 1)->byteCount, 2U * 2U * 30464U); // the next one is sized by it
}

void TestAudioRecorder::fillsTheUnheardPartWithTheObtainedSilence()
{
    FakeSdl fake;
    SDL_AudioSpec obtained{};
    obtained.silence = 0x80;
    fake.obtainedSpec = obtained;
    const StopFlag flag = makeStopFlag();
    stopAtFirstDelay(fake, flag, [&fake] {
        Bytes heard{1, 2, 3};
        fake.callBack(heard);
    });
    AudioRecorder recorder(flag);
    const Bytes recorded = contentOf(*recorder.record("Mic", 0));
    QVERIFY(std::equal(recorded.begin(), recorded.begin() + 3, Bytes{1, 2, 3}.begin()));
    QCOMPARE(std::count(recorded.begin() + 3, recorded.end(), 0x80), 352800 - 3);
}

void TestAudioRecorder::keepsTheHeardBytesInOrder()
{
    FakeSdl fake;
    const StopFlag flag = makeStopFlag();
    stopAtFirstDelay(fake, flag, [&fake] {
        for (std::uint8_t block = 1; block <= 12; ++block) { // more than there is room for
            Bytes heard(32768, block);
            fake.callBack(heard);
        }
    });
    AudioRecorder recorder(flag);
    Bytes expected;
    for (std::uint8_t block = 1; block <= 11; ++block)
        expected.insert(expected.end(), 32768, block);
    expected.resize(352800 - 1);
    expected.push_back(0); // never written
    QVERIFY(contentOf(*recorder.record("Mic", 0)) == expected);
}

void TestAudioRecorder::survivesAMicrophoneWithoutRoomForItsSound()
{
    FakeSdl fake;
    const StopFlag flag = makeStopFlag();
    stopAtFirstDelay(fake, flag, [&fake] {
        Bytes heard(32768, 1);
        fake.callBack(heard);
        heard.clear();
        fake.callBack(heard);
    });
    AudioRecorder recorder(flag);
    QCOMPARE(recorder.record("Mic", 65535)->byteCount, 0U);
}

void TestAudioRecorder::waitsInHalfSecondsAndPausesBeforeItReturns()
{
    FakeSdl fake;
    fake.tracksStatus = true;
    const StopFlag flag = makeStopFlag();
    int steps = 0;
    fake.onCall = [&](const std::string &call) {
        if (call == "delay 500" && ++steps == 3)
            flag->store(false);
    };
    AudioRecorder recorder(flag);
    recorder.record("Mic", 5);
    std::erase(fake.calls, "status 2");
    QCOMPARE(fake.calls, (Calls{"open Mic 1 obtained", "pause 2 0", "delay 500", "delay 500", "delay 500", "pause 2 1"}));
}

void TestAudioRecorder::endsAtTheFirstCheckWhenStoppedBeforeTheStart()
{
    FakeSdl fake;
    fake.tracksStatus = true;
    AudioRecorder recorder(std::make_shared<std::atomic<bool>>(false));
    QVERIFY(recorder.record("Mic", 5));
    QCOMPARE(fake.calls, (Calls{"open Mic 1 obtained", "pause 2 0", "status 2", "status 2", "pause 2 1", "status 2"}));
}

void TestAudioRecorder::endsWhenTheDeviceStopsPlaying()
{
    FakeSdl fake;
    fake.tracksStatus = true;
    fake.onCall = [&fake](const std::string &call) {
        if (call == "delay 500")
            fake.status = SDL_AUDIO_PAUSED;
    };
    AudioRecorder recorder(makeStopFlag());
    QVERIFY(recorder.record("Mic", 0));
    QCOMPARE(fake.count("delay"), 1);
}

void TestAudioRecorder::failsWhenTheDeviceVanishes()
{
    FakeSdl fake;
    fake.tracksStatus = true;
    fake.onCall = [&fake](const std::string &call) {
        if (call == "delay 500") {
            fake.tracksStatus = false;
            fake.status = SDL_AUDIO_STOPPED;
        }
    };
    {
        AudioRecorder recorder(makeStopFlag());
        verifyDisconnected(recorder);
        QCOMPARE(fake.count("delay"), 1); // noticed at the next check
        QCOMPARE(fake.count("pause 2 1"), 1);
        QCOMPARE(fake.count("close"), 0);
    }
    QCOMPARE(fake.calls.back(), std::string("close 2"));
}

void TestAudioRecorder::failsWhenTheDeviceVanishesWhileItIsStopped()
{
    FakeSdl fake;
    const StopFlag flag = makeStopFlag();
    stopAtFirstDelay(fake, flag, [&fake] {
        fake.tracksStatus = false;
        fake.status = SDL_AUDIO_STOPPED;
    });
    AudioRecorder recorder(flag);
    verifyDisconnected(recorder);
}

void TestAudioRecorder::failsWhenTheDeviceCannotBeOpened()
{
    FakeSdl fake;
    fake.nextDeviceId = 0;
    fake.status = SDL_AUDIO_PLAYING; // whatever that id may name
    {
        AudioRecorder recorder(makeStopFlag());
        verifyDisconnected(recorder);
    }
    QCOMPARE(fake.calls, (Calls{"open Mic 1 obtained"}));
}

void TestAudioRecorder::keepsTheFormatWhenTheDeviceCannotBeOpened()
{
    FakeSdl fake;
    fake.nextDeviceId = 0;
    fake.obtainedSpec = SDL_AudioSpec{};
    AudioRecorder recorder(makeStopFlag());
    verifyDisconnected(recorder);
    verifyDisconnected(recorder);
    QCOMPARE(fake.openedSpec.freq, 44100);
    QCOMPARE(int(fake.openedSpec.channels), 2);
}

void TestAudioRecorder::keepsTheDeviceOpenUntilItDies()
{
    FakeSdl fake;
    const StopFlag flag = makeStopFlag();
    stopAtFirstDelay(fake, flag);
    {
        AudioRecorder recorder(flag);
        recorder.record("Mic", 0);
        fake.calls.clear();
    }
    QCOMPARE(fake.calls, (Calls{"pause 2 1", "close 2"}));
}

void TestAudioRecorder::recordsAgainOnTheOpenDevice()
{
    FakeSdl fake;
    const StopFlag flag = makeStopFlag();
    std::uint8_t sound = 1;
    stopAtFirstDelay(fake, flag, [&fake, &sound] {
        Bytes heard(4, sound);
        fake.callBack(heard);
    });
    AudioRecorder recorder(flag);
    const auto first = recorder.record("Mic", 5);
    sound = 2;
    flag->store(true);
    const auto second = recorder.record("Another mic", 0); // its memory lies elsewhere and the first's is gone
    QCOMPARE(fake.count("open"), 1);
    QCOMPARE(second->byteCount, 352800U);
    const Bytes heardFirst = contentOf(*first);
    const Bytes heardSecond = contentOf(*second);
    QCOMPARE(Bytes(heardFirst.begin(), heardFirst.begin() + 6), (Bytes{1, 1, 1, 1, 0, 0}));
    QCOMPARE(Bytes(heardSecond.begin(), heardSecond.begin() + 6), (Bytes{2, 2, 2, 2, 0, 0}));
}

void TestAudioRecorder::opensAgainAfterAFailedOpening()
{
    FakeSdl fake;
    fake.nextDeviceId = 0;
    const StopFlag flag = makeStopFlag();
    AudioRecorder recorder(flag);
    verifyDisconnected(recorder);
    fake.nextDeviceId = 2;
    stopAtFirstDelay(fake, flag);
    QVERIFY(recorder.record("Mic", 0));
    QCOMPARE(fake.count("open"), 2);
}

void TestAudioRecorder::aLateCallbackFindsNothingToWriteTo_data()
{
    QTest::addColumn<bool>("isLost");
    QTest::newRow("recorded") << false;
    QTest::newRow("device lost") << true;
}

void TestAudioRecorder::aLateCallbackFindsNothingToWriteTo()
{
    QFETCH(const bool, isLost);
    FakeSdl fake;
    const StopFlag flag = makeStopFlag();
    stopAtFirstDelay(fake, flag, [&fake, isLost] {
        fake.tracksStatus = !isLost;
        fake.status = isLost ? SDL_AUDIO_STOPPED : SDL_AUDIO_PLAYING;
    });
    AudioRecorder recorder(flag);
    if (isLost)
        verifyDisconnected(recorder);
    else
        recorder.record("Mic", 5);
    Bytes heard(32768, 1);
    fake.callBack(heard); // would be a write into freed memory
    QCOMPARE(fake.count("pause 2 1"), 1);
}

QTEST_GUILESS_MAIN(TestAudioRecorder)
#include "tst_audio_recorder.moc"
