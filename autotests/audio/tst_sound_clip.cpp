// SPDX-License-Identifier: Apache-2.0
#include "audio/audio_component.h"
#include "audio/sound_clip.h"
#include "autotests/support/fake_sdl.h"
#include "autotests/support/wave_files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace ostra::audio;

class TestSoundClip : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void queuesTheClipAndLeavesTheDevicePaused();
    void opensWithTheClipsFormat();
    void asksForTheFileOfTheDigitInTheLanguageInForce();
    void opensBeforeTheFallbackGivesAFormat();
    void reportsTheFallbackFormatWithoutClips();
    void keepsAZeroFormatWhenTheFallbackCannotBeLoaded();
    void isNotReadyWhenAnotherClipIsMissing();
    void keepsTheLastFormatWhenTheFileIsMissing();
    void playsSilenceForABrokenFile();
    void isNotReadyWhenTheDeviceCannotBeOpened_data();
    void isNotReadyWhenTheDeviceCannotBeOpened();
    void isNotReadyWhenQueuingFails();
    void unpausesAndHoldsForASecond();
    void cutsALongerClipByClosing();
    void opensOtherSampleFormatsAsTheyAre();
    void isPlayingOnlyWhileTheDeviceRuns_data();
    void isPlayingOnlyWhileTheDeviceRuns();
    void closesOnceForOneOpening();
    void takesNoStaleIdForAPlayingDevice();
    void closingKeepsTheClipAndTheId();
    void closingWithoutAClipFreesTheNullPointerOnly();
    void aLaterLoadFreesTheClipBefore();
    void freesTheClipWithTheComponent();
    void opensAnewAtEveryLoad();

private:
    QString folder() const { return QCoreApplication::applicationDirPath(); }
    void writeClips(const QByteArray &content) { wave_files::writeClipSet(folder(), QStringLiteral("de_DE"), content); }

    QTemporaryDir state_;
};

void TestSoundClip::init()
{
    QDir(folder() + QStringLiteral("/audio_files")).removeRecursively();
    wave_files::write(state_.filePath(QStringLiteral("config.ini")), "[LANGUAGE]\nDEFAULT_LANGUAGE=german\n");
    QVERIFY(QDir::setCurrent(state_.path()));
}

void TestSoundClip::cleanup() { QDir(folder() + QStringLiteral("/audio_files")).removeRecursively(); }

void TestSoundClip::queuesTheClipAndLeavesTheDevicePaused()
{
    writeClips(wave_files::wave(48000, 2, 480));
    FakeSdl fake;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 7), 1);
    QCOMPARE(fake.deviceCalls(), (std::vector<std::string>{"open Speakers 0", "queue 2 1920"}));
    QCOMPARE(component.clipState().deviceId, SDL_AudioDeviceID(2));
}

void TestSoundClip::opensWithTheClipsFormat()
{
    writeClips(wave_files::wave(44100, 1, 480));
    const FakeSdl fake;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 0), 1);
    QCOMPARE(fake.openedSpec.freq, 44100);
    QCOMPARE(int(fake.openedSpec.channels), 1);
    QCOMPARE(int(fake.openedSpec.format), AUDIO_S16LSB);
    QVERIFY(fake.openedSpec.samples != 0);        // what is left open the environment decides
    QVERIFY(fake.openedSpec.callback == nullptr); // queued, never called back
}

void TestSoundClip::asksForTheFileOfTheDigitInTheLanguageInForce()
{
    const FakeSdl fake;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 3), 0);
    const std::string path = folder().toStdString() + "/audio_files/de_DE/3_de_DE.wav";
    QCOMPARE(fake.calls.front(), "file " + path + " rb");

    wave_files::write(state_.filePath(QStringLiteral("config.ini")), "[LANGUAGE]\nDEFAULT_LANGUAGE=dutch\n");
    AudioComponent later("Speakers"); // every component made reads the file again
    QCOMPARE(loadClip(later, 3), 0);
    QCOMPARE(fake.count("file " + folder().toStdString() + "/audio_files/nl_NL/3_nl_NL.wav rb"), 1);
}

void TestSoundClip::opensBeforeTheFallbackGivesAFormat()
{
    const FakeSdl fake;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 0), 0);
    QCOMPARE(fake.openedSpec.freq, 0);
    QCOMPARE(fake.calls.at(1), std::string("open Speakers 0"));
    QCOMPARE(fake.calls.at(2), std::string("memory 55374"));
}

void TestSoundClip::reportsTheFallbackFormatWithoutClips()
{
    const FakeSdl fake;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 0), 0);
    QCOMPARE(component.clipState().spec.freq, 22050);
    QCOMPARE(int(component.clipState().spec.channels), 2);
    QCOMPARE(int(component.clipState().spec.format), 0); // only these two are taken over
    QVERIFY(!component.clipState().clip);
    QCOMPARE(fake.count("queue"), 0);
}

void TestSoundClip::keepsAZeroFormatWhenTheFallbackCannotBeLoaded()
{
    FakeSdl fake;
    fake.loadsFallback = false;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 0), 0);
    QCOMPARE(component.clipState().spec.freq, 0);
}

void TestSoundClip::isNotReadyWhenAnotherClipIsMissing()
{
    writeClips(wave_files::wave(48000, 2, 480));
    QVERIFY(QFile::remove(wave_files::clip(folder(), QStringLiteral("de_DE"), 9)));
    const FakeSdl fake;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 7), 0);
    QVERIFY(component.clipState().isOpen); // the caller closes what it opened
    QVERIFY(component.clipState().clip);
    QCOMPARE(fake.count("queue"), 0);
}

void TestSoundClip::keepsTheLastFormatWhenTheFileIsMissing()
{
    writeClips(wave_files::wave(32000, 1, 480));
    const FakeSdl fake;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 7), 1);
    closeDevice(component);
    QVERIFY(QFile::remove(wave_files::clip(folder(), QStringLiteral("de_DE"), 3)));
    QCOMPARE(loadClip(component, 3), 0);
    QCOMPARE(fake.openedSpec.freq, 32000);
    QCOMPARE(component.clipState().clipByteCount, 960U);
}

void TestSoundClip::playsSilenceForABrokenFile()
{
    writeClips("this is no wave file");
    const FakeSdl fake;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 7), 1);
    QCOMPARE(fake.count("queue 2 0 null"), 1);
}

void TestSoundClip::isNotReadyWhenTheDeviceCannotBeOpened_data()
{
    QTest::addColumn<unsigned>("id");
    QTest::newRow("refused") << 0U;
    QTest::newRow("reserved") << 1U;
}

void TestSoundClip::isNotReadyWhenTheDeviceCannotBeOpened()
{
    QFETCH(unsigned, id);
    writeClips(wave_files::wave(48000, 2, 480));
    FakeSdl fake;
    fake.nextDeviceId = id;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 7), 0);
    closeDevice(component);
    QCOMPARE(fake.count("close"), 0);
    QCOMPARE(component.clipState().spec.freq, 48000);
}

void TestSoundClip::isNotReadyWhenQueuingFails()
{
    writeClips(wave_files::wave(48000, 2, 480));
    FakeSdl fake;
    fake.queueResult = -1;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 7), 0);
}

void TestSoundClip::unpausesAndHoldsForASecond()
{
    writeClips(wave_files::wave(48000, 2, 480));
    FakeSdl fake;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 7), 1);
    fake.calls.clear();
    playClip(component);
    QCOMPARE(fake.calls, (std::vector<std::string>{"pause 2 0", "delay 1000"}));
}

void TestSoundClip::cutsALongerClipByClosing()
{
    writeClips(wave_files::wave(48000, 2, 3 * 48000));
    FakeSdl fake;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 7), 1);
    playClip(component);
    closeDevice(component);
    QCOMPARE(fake.deviceCalls(),
             (std::vector<std::string>{"open Speakers 0", "queue 2 576000", "pause 2 0", "delay 1000", "close 2"}));
}

void TestSoundClip::opensOtherSampleFormatsAsTheyAre()
{
    QByteArray clip = wave_files::wave(48000, 1, 480);
    clip[34] = 24;                                          // bits per sample
    clip[32] = 3;                                           // bytes per frame
    clip.replace(28, 4, QByteArray("\x80\x32\x02\x00", 4)); // 144000 bytes per second
    writeClips(clip);
    const FakeSdl fake;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 7), 1);
    QCOMPARE(fake.openedSpec.format, SDL_AudioFormat(AUDIO_S32LSB)); // the sound library widens 24 bits
    QCOMPARE(component.clipState().clipByteCount, 320U * 4U);
}

void TestSoundClip::isPlayingOnlyWhileTheDeviceRuns_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("playing");
    QTest::newRow("stopped") << int(SDL_AUDIO_STOPPED) << false;
    QTest::newRow("playing") << int(SDL_AUDIO_PLAYING) << true;
    QTest::newRow("paused") << int(SDL_AUDIO_PAUSED) << false;
}

void TestSoundClip::isPlayingOnlyWhileTheDeviceRuns()
{
    QFETCH(int, status);
    writeClips(wave_files::wave(48000, 2, 480));
    FakeSdl fake;
    fake.status = static_cast<SDL_AudioStatus>(status);
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 7), 1);
    QTEST(isPlaying(component), "playing");
}

void TestSoundClip::closesOnceForOneOpening()
{
    writeClips(wave_files::wave(48000, 2, 480));
    const FakeSdl fake;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 7), 1);
    closeDevice(component);
    closeDevice(component); // by now the number may belong to somebody else's device
    QCOMPARE(fake.count("close 2"), 1);
}

void TestSoundClip::takesNoStaleIdForAPlayingDevice()
{
    writeClips(wave_files::wave(48000, 2, 480));
    FakeSdl fake;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 7), 1);
    closeDevice(component);
    fake.status = SDL_AUDIO_PLAYING; // another opener got the number
    QVERIFY(!isPlaying(component));
}

void TestSoundClip::closingKeepsTheClipAndTheId()
{
    writeClips(wave_files::wave(48000, 2, 480));
    const FakeSdl fake;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 7), 1);
    const Uint8 *clip = component.clipState().clip.get();
    closeDevice(component);
    QCOMPARE(component.clipState().clip.get(), clip);
    QCOMPARE(component.clipState().deviceId, SDL_AudioDeviceID(2));
    QCOMPARE(fake.count("free"), 0);
}

void TestSoundClip::closingWithoutAClipFreesTheNullPointerOnly()
{
    const FakeSdl fake;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 0), 0);
    closeDevice(component);
    QCOMPARE(fake.count("free null"), 1);
}

void TestSoundClip::aLaterLoadFreesTheClipBefore()
{
    writeClips(wave_files::wave(48000, 2, 480));
    const FakeSdl fake;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 7), 1);
    closeDevice(component);
    QCOMPARE(loadClip(component, 8), 1);
    QCOMPARE(fake.count("free clip"), 1);
    closeDevice(component);

    writeClips("broken");
    QCOMPARE(loadClip(component, 7), 1);
    QCOMPARE(fake.count("free clip"), 2);
    QVERIFY(!component.clipState().clip);
}

void TestSoundClip::freesTheClipWithTheComponent()
{
    writeClips(wave_files::wave(48000, 2, 480));
    const FakeSdl fake;
    {
        AudioComponent component("Speakers");
        QCOMPARE(loadClip(component, 7), 1);
        closeDevice(component);
        QCOMPARE(fake.count("free clip"), 0);
    }
    QCOMPARE(fake.count("free clip"), 1);
}

void TestSoundClip::opensAnewAtEveryLoad()
{
    writeClips(wave_files::wave(48000, 2, 480));
    FakeSdl fake;
    AudioComponent component("Speakers");
    QCOMPARE(loadClip(component, 7), 1);
    fake.nextDeviceId = 3;
    QCOMPARE(loadClip(component, 8), 1);
    QCOMPARE(component.clipState().deviceId, SDL_AudioDeviceID(3));
    QCOMPARE(fake.count("close"), 0);
}

QTEST_GUILESS_MAIN(TestSoundClip)
#include "tst_sound_clip.moc"
