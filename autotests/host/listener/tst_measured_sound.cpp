// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/listener/listener_process.h"

#include "host/measure/digit_clips.h"

#include <SDL.h>

#include <QJsonArray>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <random>
#include <vector>

namespace {

const QString monitor = QStringLiteral("Monitor of Speakers");
constexpr int rate = 48'000;

using Frames = std::vector<float>; // interleaved, two channels

/// A stream of its own into the sink, which the sound server mixes with the others; ends with this object.
class Stream {
public:
    explicit Stream(const Frames &frames)
    {
        SDL_AudioSpec wanted{};
        wanted.freq = rate;
        wanted.format = AUDIO_F32SYS;
        wanted.channels = 2;
        wanted.samples = 4096;
        device_ = SDL_OpenAudioDevice("Speakers", SDL_FALSE, &wanted, nullptr, 0);
        isPlaying_ =
            device_ != 0 && SDL_QueueAudio(device_, frames.data(), static_cast<Uint32>(frames.size() * sizeof(float))) == 0;
        if (isPlaying_)
            SDL_PauseAudioDevice(device_, SDL_FALSE);
    }
    ~Stream() { SDL_CloseAudioDevice(device_); }
    Stream(const Stream &) = delete;
    Stream &operator=(const Stream &) = delete;

    bool isPlaying() const { return isPlaying_; }

private:
    SDL_AudioDeviceID device_ = 0;
    bool isPlaying_ = false;
};

struct Loudness {
    float left = 1;
    float right = 1;
};

Frames framesOf(const std::vector<float> &samples, Loudness loudness = {})
{
    Frames frames;
    for (const float sample : samples)
        frames.insert(frames.end(), {sample * loudness.left, sample * loudness.right});
    return frames;
}

double powerOf(const std::vector<float> &samples)
{
    double sum = 0;
    for (const float sample : samples)
        sum += double{sample} * double{sample};
    return sum / static_cast<double>(samples.size());
}

std::vector<float> noise(double power, int seconds)
{
    std::mt19937 random(5);
    std::normal_distribution<double> normal(0, std::sqrt(power));
    std::vector<float> samples;
    for (int frame = 0; frame < rate * seconds; ++frame)
        samples.push_back(static_cast<float>(normal(random)));
    return samples;
}

} // namespace

// What the listener measures on a card whose sound is known to the last sample.
class TestMeasuredSound : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { SDL_Quit(); }

    void hearsACleanCard_data();
    void hearsACleanCard();
    void measuresNoiseThatIsMixedIn_data();
    void measuresNoiseThatIsMixedIn();
    void tellsTheChannelsApart_data();
    void tellsTheChannelsApart();
    void countsClippedFrames();
    void keepsSoundWhenAsked();
    void refusesAFileThatItCannotWrite();

private:
    QJsonObject measured(const Frames &frames, const Frames &mixedIn = {});

    measure::DigitClips clips_;
};

void TestMeasuredSound::initTestCase()
{
    QCOMPARE(SDL_setenv("SDL_AUDIODRIVER", "pulseaudio", 1), 0);
    QVERIFY2(SDL_InitSubSystem(SDL_INIT_AUDIO) == 0, SDL_GetError());
    const auto clips = measure::readDigitClips(std::filesystem::path(AUDIO_CLIPS_DIR), "en_US");
    QVERIFY(clips);
    clips_ = *clips;
    for (const measure::MonoSound &clip : clips_)
        QCOMPARE(clip.sampleRate, std::uint32_t{rate});
}

QJsonObject TestMeasuredSound::measured(const Frames &frames, const Frames &mixedIn)
{
    ListenerProcess listener(listeningArguments(monitor, QStringLiteral("en_US")));
    if (listener.waitFor(QStringLiteral("ready")).isEmpty())
        return {};
    const Stream background(mixedIn);
    const Stream digit(frames);
    return digit.isPlaying() ? listener.waitFor(QStringLiteral("digit")) : QJsonObject();
}

void TestMeasuredSound::hearsACleanCard_data()
{
    QTest::addColumn<std::size_t>("digit");
    for (const std::size_t digit : {std::size_t{0}, std::size_t{7}})
        QTest::addRow("%zu", digit) << digit;
}

void TestMeasuredSound::hearsACleanCard()
{
    QFETCH(const std::size_t, digit);
    const QJsonObject event = measured(framesOf(clips_[digit].samples));
    QCOMPARE(event.value(QLatin1String("digit")).toInt(-1), static_cast<int>(digit));
    const QJsonValue found = event.value(QLatin1String("measured"));
    const double snr = found[QLatin1String("snrDb")].toDouble(-999);
    QVERIFY2(snr > 60, qPrintable(QString::number(snr)));
    const double clock = found[QLatin1String("clockErrorPpm")].toDouble(999);
    QVERIFY2(std::abs(clock) < 5, qPrintable(QString::number(clock)));
    QCOMPARE(found[QLatin1String("clippedFrameCount")].toInt(-1), 0);
    const double level = 10 * std::log10(powerOf(clips_[digit].samples));
    QVERIFY(std::abs(event.value(QLatin1String("levelDbfs")).toDouble() - level) < 0.5);
    qInfo("SNR %.1f dB, clock %.1f ppm", snr, clock);
}

void TestMeasuredSound::measuresNoiseThatIsMixedIn_data()
{
    QTest::addColumn<double>("snrDb");
    for (const double snr : {20.0, 30.0})
        QTest::addRow("%.0f dB", snr) << snr;
}

void TestMeasuredSound::measuresNoiseThatIsMixedIn()
{
    QFETCH(const double, snrDb);
    const std::vector<float> &clip = clips_[3].samples;
    const double noisePower = powerOf(clip) * std::pow(10, -snrDb / 10);
    const QJsonObject event = measured(framesOf(clip), framesOf(noise(noisePower, 20)));
    QCOMPARE(event.value(QLatin1String("digit")).toInt(-1), 3);
    const QJsonValue found = event.value(QLatin1String("measured"));
    const double snr = found[QLatin1String("snrDb")].toDouble(-999);
    QVERIFY2(std::abs(snr - snrDb) < 1, qPrintable(QString::number(snr)));
    QVERIFY(found[QLatin1String("clockErrorPpm")].isUndefined());
    qInfo("SNR %.1f dB", snr);
}

void TestMeasuredSound::tellsTheChannelsApart_data()
{
    QTest::addColumn<float>("left");
    QTest::addColumn<float>("right");
    QTest::newRow("left alone") << 1.0F << 0.0F;
    QTest::newRow("right alone") << 0.0F << 1.0F;
    QTest::newRow("right 20 dB softer") << 1.0F << 0.1F;
}

void TestMeasuredSound::tellsTheChannelsApart()
{
    QFETCH(const float, left);
    QFETCH(const float, right);
    const QJsonObject event = measured(framesOf(clips_[5].samples, {left, right}));
    QCOMPARE(event.value(QLatin1String("digit")).toInt(-1), 5);
    const QJsonValue levels = event.value(QLatin1String("measured"))[QLatin1String("channelDbfs")];
    const double level = 10 * std::log10(powerOf(clips_[5].samples));
    const float gains[] = {left, right};
    for (const qsizetype channel : {0, 1}) {
        const double heard = levels[channel].toDouble(999);
        const double gain = double{gains[channel]};
        const bool isRight = gain > 0 ? std::abs(heard - level - 20 * std::log10(gain)) < 0.5 : heard < -90;
        QVERIFY2(isRight, qPrintable(QStringLiteral("%1: %2").arg(channel).arg(heard)));
    }
}

void TestMeasuredSound::countsClippedFrames()
{
    std::vector<float> clip = clips_[8].samples;
    const std::size_t middle = clip.size() / 2;
    std::fill_n(clip.begin() + static_cast<std::ptrdiff_t>(middle), 7, 1.0F);
    for (float &sample : clip)
        sample = std::clamp(sample, -0.9F, sample >= 1.0F ? 1.0F : 0.9F);
    const QJsonObject event = measured(framesOf(clip));
    QCOMPARE(event.value(QLatin1String("digit")).toInt(-1), 8);
    QCOMPARE(event.value(QLatin1String("measured"))[QLatin1String("clippedFrameCount")].toInt(-1), 7);
}

void TestMeasuredSound::keepsSoundWhenAsked()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("heard.wav"));
    ListenerProcess listener(listeningArguments(monitor, QStringLiteral("en_US")) +
                             QStringList{QStringLiteral("--record"), file});
    QVERIFY(!listener.waitFor(QStringLiteral("ready")).isEmpty());
    const Stream digit(framesOf(clips_[2].samples));
    QCOMPARE(listener.waitFor(QStringLiteral("digit")).value(QLatin1String("digit")).toInt(-1), 2);
    listener.process().closeWriteChannel();
    QVERIFY(listener.waitForEnd());
    const auto sound = measure::readWavFile(file.toStdU16String());
    QVERIFY(sound);
    QVERIFY(sound->samples.size() > clips_[2].samples.size());
    const double kept = powerOf(sound->samples) * static_cast<double>(sound->samples.size());
    const double played = powerOf(clips_[2].samples) * static_cast<double>(clips_[2].samples.size());
    QVERIFY2(std::abs(10 * std::log10(kept / played)) < 0.5, qPrintable(QString::number(kept / played)));
}

void TestMeasuredSound::refusesAFileThatItCannotWrite()
{
    ListenerProcess listener(listeningArguments(monitor, QStringLiteral("en_US")) +
                             QStringList{QStringLiteral("--record"), QStringLiteral("no/such/heard.wav")});
    QVERIFY(listener.waitForEnd());
    QCOMPARE(listener.process().exitCode(), 2);
    QVERIFY(listener.process().readAllStandardError().contains("'no/such/heard.wav' cannot be written"));
}

QTEST_GUILESS_MAIN(TestMeasuredSound)
#include "tst_measured_sound.moc"
