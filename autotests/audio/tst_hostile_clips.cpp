// SPDX-License-Identifier: Apache-2.0
// Clips are not judged: what the sound library makes of a file is what is opened and queued, and nothing else.
#include "audio/audio_component.h"
#include "audio/sdl_api.h"
#include "audio/sound_clip.h"
#include "autotests/support/fake_sdl.h"
#include "autotests/support/hostile_waves.h"
#include "autotests/support/wave_files.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

using namespace ostra::audio;

namespace {

constexpr int hostileDigit = 3;
constexpr int soundDigit = 7;
constexpr int soundRate = 48000;
constexpr Uint32 soundByteCount = 480 * 2 * 2;
constexpr qint64 loadMillisecondsAtMost = 2000;  // below 5 were measured
constexpr qint64 hugeMillisecondsAtMost = 15000; // Wine 8 takes 3 s to hand out four gigabytes

/// What the sound library says of a file when nothing of ours is between. It keeps as much memory as the file claims to need,
/// so that is given back at once.
struct Direct {
    explicit Direct(const QString &path)
    {
        Uint8 *samples = nullptr;
        isLoaded = SDL_LoadWAV(qUtf8Printable(path), &spec, &samples, &byteCount) != nullptr;
        hasSamples = samples != nullptr;
        content = QByteArray(reinterpret_cast<const char *>(samples), static_cast<qsizetype>(byteCount));
        SDL_FreeWAV(samples);
    }

    bool isLoaded = false;
    bool hasSamples = false;
    SDL_AudioSpec spec{};
    Uint32 byteCount = 0;
    QByteArray content;
};

/// What was given to be played, and how often. One lives at a time.
struct Queued {
    Queued()
    {
        current = this;
        sdl().queueAudio = [](SDL_AudioDeviceID id, const void *data, Uint32 byteCount) {
            ++current->count;
            current->deviceId = id;
            current->hasSamples = data != nullptr;
            current->content = QByteArray(static_cast<const char *>(data), static_cast<qsizetype>(byteCount));
            return 0;
        };
    }

    int count = 0;
    SDL_AudioDeviceID deviceId = 0;
    bool hasSamples = false;
    QByteArray content;

private:
    static inline Queued *current = nullptr;
};

QByteArray contentOf(const ClipState &state)
{
    return {reinterpret_cast<const char *>(state.clip.get()), static_cast<qsizetype>(state.clipByteCount)};
}

QByteArray textOf(const SDL_AudioSpec &spec)
{
    return QByteArray::number(spec.freq) + " Hz, " + QByteArray::number(spec.channels) + " channels, format " +
           QByteArray::number(spec.format, 16) + ", " + QByteArray::number(spec.samples) + " frames at once";
}

} // namespace

class TestHostileClips : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { QDir(folder() + QStringLiteral("/audio_files")).removeRecursively(); }

    void theLibraryTakesWhatItTook_data() { addFiles(); }
    void theLibraryTakesWhatItTook();
    void queuesWhatTheLibraryLoads_data() { addFiles(); }
    void queuesWhatTheLibraryLoads();
    void nothingOfTheClipBeforeIsPlayed_data() { addFiles(); }
    void nothingOfTheClipBeforeIsPlayed();

private:
    static QString folder() { return QCoreApplication::applicationDirPath(); }
    static QString hostileClip() { return wave_files::clip(folder(), QStringLiteral("de_DE"), hostileDigit); }
    static void addFiles();
    static void load(AudioComponent &component, int digit);

    QTemporaryDir state_;
};

void TestHostileClips::initTestCase()
{
    wave_files::write(state_.filePath(QStringLiteral("config.ini")), "[LANGUAGE]\nDEFAULT_LANGUAGE=german\n");
    QVERIFY(QDir::setCurrent(state_.path()));
    wave_files::writeClipSet(folder(), QStringLiteral("de_DE"), wave_files::wave(soundRate, 2, 480));
}

void TestHostileClips::addFiles()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<std::optional<bool>>("isAccepted");
    for (const hostile_waves::File &file : hostile_waves::files())
        QTest::newRow(file.name) << file.content << file.isAccepted;
}

void TestHostileClips::load(AudioComponent &component, int digit)
{
    QElapsedTimer time;
    time.start();
    QCOMPARE(loadClip(component, digit), 1); // the device opens and ten clips are there
    QFETCH(const std::optional<bool>, isAccepted);
    QVERIFY2(time.elapsed() < (isAccepted ? loadMillisecondsAtMost : hugeMillisecondsAtMost),
             qPrintable(QString::number(time.elapsed())));
}

// Without this the comparisons below could be those of refused files alone.
void TestHostileClips::theLibraryTakesWhatItTook()
{
    QFETCH(const QByteArray, content);
    wave_files::write(hostileClip(), content);
    QFETCH(const std::optional<bool>, isAccepted);
    const Direct direct(hostileClip());
    QCOMPARE(direct.isLoaded, isAccepted.value_or(direct.isLoaded));
}

void TestHostileClips::queuesWhatTheLibraryLoads()
{
    QFETCH(const QByteArray, content);
    wave_files::write(hostileClip(), content);
    const Direct direct(hostileClip());
    const FakeSdl fake;
    Queued queued; // the library's stand-in writes to it
    AudioComponent component("Speakers");
    load(component, hostileDigit);
    QCOMPARE(textOf(fake.openedSpec), textOf(direct.spec));
    QCOMPARE(contentOf(component.clipState()), direct.content);
    QCOMPARE(queued.count, 1);
    QCOMPARE(queued.deviceId, fake.nextDeviceId);
    QCOMPARE(queued.hasSamples, direct.hasSamples);
    QCOMPARE(queued.content, direct.content);
    QVERIFY(component.clipState().spec.freq > 0 && component.clipState().spec.channels > 0); // else the fallback sound's
    if (!direct.isLoaded)
        QCOMPARE(component.clipState().spec.freq, 22050);
}

void TestHostileClips::nothingOfTheClipBeforeIsPlayed()
{
    QFETCH(const QByteArray, content);
    wave_files::write(hostileClip(), content);
    const Direct direct(hostileClip());
    const FakeSdl fake;
    AudioComponent component("Speakers");
    load(component, soundDigit);
    closeDevice(component);
    load(component, hostileDigit);
    closeDevice(component);
    QCOMPARE(contentOf(component.clipState()), direct.content);
    QCOMPARE(component.clipState().clip != nullptr, direct.hasSamples);
    QCOMPARE(fake.openedSpec.freq, direct.isLoaded ? direct.spec.freq : soundRate);
    load(component, soundDigit);
    QCOMPARE(component.clipState().clipByteCount, soundByteCount);
    QCOMPARE(fake.openedSpec.freq, soundRate);
}

QTEST_GUILESS_MAIN(TestHostileClips)
#include "tst_hostile_clips.moc"
