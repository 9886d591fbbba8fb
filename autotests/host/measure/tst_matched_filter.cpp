// SPDX-License-Identifier: Apache-2.0
#include "host/measure/matched_filter.h"

#include <QObject>
#include <QTest>

#include <cmath>
#include <numbers>
#include <random>

using measure::DigitClips;
using measure::MatchedFilter;
using measure::MonoSound;
using measure::Recognition;

namespace {

constexpr double clipSeconds = 0.5;

/// A glide of its own per digit, faded at both ends: unlike every other digit, and known between frames too.
double glideAt(int digit, double seconds)
{
    if (seconds < 0 || seconds > clipSeconds)
        return 0;
    const double start = 300 + 250 * digit;
    const double slope = (digit % 2 == 0 ? 800 : -400) / clipSeconds;
    const double phase = 2 * std::numbers::pi * (start + slope * seconds / 2) * seconds;
    return 0.4 * std::sin(phase) * std::sin(std::numbers::pi * seconds / clipSeconds);
}

MonoSound sound(std::uint32_t rate, double seconds)
{
    return {.sampleRate = rate, .samples = std::vector<float>(static_cast<std::size_t>(seconds * rate))};
}

void addGlide(MonoSound &target, int digit, double delaySeconds, double gain = 1)
{
    for (std::size_t frame = 0; frame < target.samples.size(); ++frame) {
        const double seconds = static_cast<double>(frame) / target.sampleRate - delaySeconds;
        target.samples[frame] += static_cast<float>(gain * glideAt(digit, seconds));
    }
}

MonoSound capture(int digit, double delaySeconds, double gain = 1, std::uint32_t rate = 48000)
{
    MonoSound result = sound(rate, 2);
    addGlide(result, digit, delaySeconds, gain);
    return result;
}

DigitClips glides()
{
    DigitClips clips;
    for (int digit = 0; digit < 10; ++digit) {
        MonoSound &clip = clips[static_cast<std::size_t>(digit)];
        clip = sound(48000, clipSeconds);
        addGlide(clip, digit, 0);
    }
    return clips;
}

/// Of the same values with every standard library: the sum of twelve uniform values is near enough to normal.
void addNoise(MonoSound &target, double rms)
{
    std::mt19937 engine(20240229);
    for (float &sample : target.samples) {
        double sum = -6;
        for (int term = 0; term < 12; ++term)
            sum += static_cast<double>(engine()) / 4294967296.0;
        sample += static_cast<float>(rms * sum);
    }
}

double rmsOf(const MonoSound &sound)
{
    double energy = 0;
    for (const float sample : sound.samples)
        energy += double{sample} * double{sample};
    return std::sqrt(energy / static_cast<double>(sound.samples.size()));
}

bool isFinite(const Recognition &result)
{
    bool finite = std::isfinite(result.score) && std::isfinite(result.margin) && std::isfinite(result.lag.count());
    for (const double score : result.scores)
        finite = finite && score >= 0 && score <= 1;
    return finite;
}

void compareWithNothing(const Recognition &result)
{
    QVERIFY(isFinite(result));
    QVERIFY(!result.digit);
    QCOMPARE(result.score, 0.0);
    QCOMPARE(result.margin, 0.0);
    QCOMPARE(result.lagFrames, std::int64_t{0});
    QVERIFY(!result.accepted);
}

} // namespace

class TestMatchedFilter : public QObject {
    Q_OBJECT

private slots:
    void recognisesEveryDigit();
    void findsTheDelayToTheFrame_data();
    void findsTheDelayToTheFrame();
    void ignoresVolume_data();
    void ignoresVolume();
    void hearsInvertedPolarityAsTheSameDigit();
    void recognisesUnderNoise();
    void refusesNoiseAlone();
    void refusesADrownedDigit();
    void findsNothingInEmptyOrSilentCaptures_data();
    void findsNothingInEmptyOrSilentCaptures();
    void scoresACaptureThatEndsEarly();
    void findsAClipThatBeganBeforeTheCapture();
    void takesCapturesOfOtherRates_data();
    void takesCapturesOfOtherRates();
    void isNotMisledByALouderSoundElsewhere();
    void refusesWhenTwoDigitsAreAlike();
    void silentClipsScoreNothing();
    void searchesLongCapturesToTheirEnd();

private:
    const MatchedFilter filter_{glides()};
};

void TestMatchedFilter::recognisesEveryDigit()
{
    for (int digit = 0; digit < 10; ++digit) {
        const Recognition result = filter_.recognise(capture(digit, 0.7));
        QCOMPARE(result.digit, std::optional(digit));
        QVERIFY(result.score > 0.99 && result.score <= 1);
        QCOMPARE(result.score, result.scores[static_cast<std::size_t>(digit)]);
        QVERIFY(result.margin > 0.3);
        QVERIFY(result.accepted && !result.inverted && isFinite(result));
    }
}

void TestMatchedFilter::findsTheDelayToTheFrame_data()
{
    QTest::addColumn<int>("delayFrames");
    // Every position between two frames at the analysis rate, the first frame, and blocks further on.
    for (const int frames : {0, 1, 2, 3, 4, 5, 6, 4799, 20000, 39731, 65537})
        QTest::addRow("%d frames", frames) << frames;
}

void TestMatchedFilter::findsTheDelayToTheFrame()
{
    QFETCH(const int, delayFrames);
    for (const int digit : {0, 3, 9}) {
        const Recognition result = filter_.recognise(capture(digit, delayFrames / 48000.0));
        QCOMPARE(result.lagFrames, std::int64_t{delayFrames});
        QVERIFY(std::abs(result.lag.count() - delayFrames / 48000.0) < 0.5 / 48000);
    }
}

void TestMatchedFilter::ignoresVolume_data()
{
    QTest::addColumn<double>("gain");
    QTest::newRow("full") << 2.0;
    QTest::newRow("-20 dB") << 0.1;
    QTest::newRow("-66 dB") << 0.0005;
}

void TestMatchedFilter::ignoresVolume()
{
    QFETCH(const double, gain);
    const Recognition result = filter_.recognise(capture(4, 0.25, gain));
    QCOMPARE(result.digit, std::optional(4));
    QCOMPARE(result.lagFrames, std::int64_t{12000});
    QVERIFY(result.score > 0.99);
}

void TestMatchedFilter::hearsInvertedPolarityAsTheSameDigit()
{
    const Recognition upright = filter_.recognise(capture(4, 0.25));
    const Recognition inverted = filter_.recognise(capture(4, 0.25, -1));
    QCOMPARE(inverted.digit, std::optional(4));
    QCOMPARE(inverted.lagFrames, std::int64_t{12000});
    QCOMPARE(inverted.score, upright.score);
    QVERIFY(inverted.inverted && inverted.accepted);
}

void TestMatchedFilter::recognisesUnderNoise()
{
    constexpr double noiseOverSpeech = 1.585; // 4 dB
    for (int digit = 0; digit < 10; ++digit) {
        MonoSound noisy = capture(digit, 0.7);
        addNoise(noisy, noiseOverSpeech * rmsOf(glides()[static_cast<std::size_t>(digit)]));
        const Recognition result = filter_.recognise(noisy);
        QCOMPARE(result.digit, std::optional(digit));
        QVERIFY(result.accepted);
        QVERIFY(std::abs(result.lagFrames - 33600) <= 6);
    }
}

void TestMatchedFilter::refusesNoiseAlone()
{
    MonoSound noise = sound(48000, 3);
    addNoise(noise, 0.1);
    const Recognition result = filter_.recognise(noise);
    QVERIFY(result.score > 0 && result.score < 0.15);
    QVERIFY(!result.accepted);
}

void TestMatchedFilter::refusesADrownedDigit()
{
    MonoSound drowned = capture(0, 0.7, 0.2);
    for (std::size_t frame = 0; frame < drowned.samples.size(); ++frame) {
        const double seconds = static_cast<double>(frame) / drowned.sampleRate;
        drowned.samples[frame] += static_cast<float>(0.3 * std::sin(2 * std::numbers::pi * 3300 * seconds));
    }
    const Recognition result = filter_.recognise(drowned);
    QCOMPARE(result.digit, std::optional(0));
    QVERIFY(result.margin > measure::minAcceptedMargin);
    QVERIFY2(result.score > 0.15 && result.score < measure::minAcceptedScore, qPrintable(QString::number(result.score)));
    QVERIFY(!result.accepted);
}

void TestMatchedFilter::findsNothingInEmptyOrSilentCaptures_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<unsigned>("rate");
    QTest::addColumn<double>("offset");
    QTest::newRow("empty") << 0.0 << 48000U << 0.0;
    QTest::newRow("silence") << 2.0 << 48000U << 0.0;
    QTest::newRow("short silence") << 0.01 << 48000U << 0.0;
    QTest::newRow("below the quietest level") << 2.0 << 48000U << 1e-6;
    QTest::newRow("no rate") << 0.0 << 0U << 0.0;
    QTest::newRow("rate too low") << 2.0 << 999U << 0.5;
}

void TestMatchedFilter::findsNothingInEmptyOrSilentCaptures()
{
    QFETCH(const double, seconds);
    QFETCH(const unsigned, rate);
    QFETCH(const double, offset);
    MonoSound quiet = sound(rate, seconds);
    for (float &sample : quiet.samples)
        sample = static_cast<float>(offset);
    compareWithNothing(filter_.recognise(quiet));
}

void TestMatchedFilter::scoresACaptureThatEndsEarly()
{
    MonoSound first = capture(6, 0);
    first.samples.resize(12000);
    const Recognition half = filter_.recognise(first);
    QCOMPARE(half.digit, std::optional(6));
    // Half of the energy is there.
    QVERIFY2(std::abs(half.score - std::sqrt(0.5)) < 0.02, qPrintable(QString::number(half.score)));
    QCOMPARE(half.lagFrames, std::int64_t{0});

    first.samples.resize(1);
    first.samples[0] = 0.5F;
    const Recognition one = filter_.recognise(first);
    QVERIFY(isFinite(one) && !one.accepted);
}

void TestMatchedFilter::findsAClipThatBeganBeforeTheCapture()
{
    const Recognition result = filter_.recognise(capture(2, -0.1));
    QCOMPARE(result.digit, std::optional(2));
    QCOMPARE(result.lagFrames, std::int64_t{-4800});
    QVERIFY(result.accepted && result.score > 0.9 && result.score < 0.99);
}

void TestMatchedFilter::takesCapturesOfOtherRates_data()
{
    QTest::addColumn<unsigned>("rate");
    for (const unsigned rate : {8000U, 16000U, 22050U, 44100U, 96000U})
        QTest::addRow("%u", rate) << rate;
}

void TestMatchedFilter::takesCapturesOfOtherRates()
{
    QFETCH(const unsigned, rate);
    const std::int64_t delayFrames = 7919;
    const Recognition result = filter_.recognise(capture(5, static_cast<double>(delayFrames) / rate, 1, rate));
    QCOMPARE(result.digit, std::optional(5));
    QCOMPARE(result.lagFrames, delayFrames);
    QVERIFY(result.score > 0.99);
}

void TestMatchedFilter::isNotMisledByALouderSoundElsewhere()
{
    MonoSound busy = capture(3, 0.2, 0.02);
    for (std::size_t frame = 60000; frame < 90000; ++frame)
        busy.samples[frame] = frame / 200 % 2 == 0 ? 0.9F : -0.9F;
    const Recognition result = filter_.recognise(busy);
    QCOMPARE(result.digit, std::optional(3));
    QVERIFY(result.accepted);
}

void TestMatchedFilter::refusesWhenTwoDigitsAreAlike()
{
    MonoSound both = capture(1, 0.3);
    addGlide(both, 8, 0.3);
    const Recognition result = filter_.recognise(both);
    QVERIFY(result.score > measure::minAcceptedScore);
    QVERIFY(result.margin < measure::minAcceptedMargin);
    QVERIFY(!result.accepted);
}

void TestMatchedFilter::silentClipsScoreNothing()
{
    DigitClips clips = glides();
    clips[7].samples.clear();
    clips[8].samples.assign(1000, 0.0F);
    const MatchedFilter filter(clips);
    const Recognition result = filter.recognise(capture(6, 0.1));
    QCOMPARE(result.digit, std::optional(6));
    QCOMPARE(result.scores[7], 0.0);
    QCOMPARE(result.scores[8], 0.0);
    compareWithNothing(MatchedFilter(DigitClips{}).recognise(capture(6, 0.1)));
}

void TestMatchedFilter::searchesLongCapturesToTheirEnd()
{
    MonoSound minute = sound(8000, 60);
    addGlide(minute, 9, 59.5);
    const Recognition result = filter_.recognise(minute);
    QCOMPARE(result.digit, std::optional(9));
    QCOMPARE(result.lagFrames, std::int64_t{59 * 8000 + 4000});
}

QTEST_GUILESS_MAIN(TestMatchedFilter)
#include "tst_matched_filter.moc"
