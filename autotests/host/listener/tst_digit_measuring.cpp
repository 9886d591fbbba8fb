// SPDX-License-Identifier: Apache-2.0
#include "host/listener/digit_measuring.h"

#include <QObject>
#include <QTest>

#include <cmath>
#include <numbers>
#include <random>

namespace {

constexpr std::int64_t clipBegin = 24'000;
constexpr std::int64_t clipFrameCount = 36'000;

/// The same swelling tone of many harmonics for each digit, with silent ends.
measure::DigitClips clips()
{
    measure::DigitClips all;
    for (measure::MonoSound &clip : all) {
        clip.sampleRate = host::captureRate;
        for (std::int64_t frame = 0; frame < clipFrameCount; ++frame) {
            const double place = static_cast<double>(frame) / clipFrameCount;
            double sum = 0;
            for (int harmonic = 1; harmonic <= 20; ++harmonic)
                sum += std::sin(2 * std::numbers::pi * harmonic * (100 * place + 15 * place * place)) / harmonic;
            clip.samples.push_back(static_cast<float>(0.2 * std::pow(std::sin(std::numbers::pi * place), 2) * sum));
        }
    }
    return all;
}

/// Two equal channels with the clip in white noise that many dB below it; `clippedCount` frames in the middle stand at full
/// scale.
host::SoundHistory capture(double snrDb, int clippedCount)
{
    const std::vector<float> clip = clips()[0].samples;
    double power = 0;
    for (const float sample : clip)
        power += double{sample} * double{sample} / clipFrameCount;
    std::mt19937 random(5);
    std::normal_distribution<double> noise(0, std::sqrt(power * std::pow(10, -snrDb / 10)));
    std::vector<float> interleaved;
    for (std::int64_t frame = 0; frame < clipFrameCount + 2 * clipBegin; ++frame) {
        const std::int64_t place = frame - clipBegin;
        const bool isInside = place >= 0 && place < clipFrameCount;
        float sample = (isInside ? clip[static_cast<std::size_t>(place)] : 0.0F) + static_cast<float>(noise(random));
        if (place >= 18'000 && place < 18'000 + clippedCount)
            sample = 1.0F;
        interleaved.insert(interleaved.end(), host::captureChannelCount, sample);
    }
    host::SoundHistory history;
    history.append(interleaved, {});
    return history;
}

host::DigitMeasurement measured(const host::SoundHistory &history)
{
    host::FoundDigit found;
    found.span = {clipBegin + 20, clipBegin + 20 + clipFrameCount}; // as inexact as the search
    return host::DigitMeasuring(clips()).measure(history, found);
}

} // namespace

class TestDigitMeasuring : public QObject {
    Q_OBJECT

private slots:
    void measuresNoise_data();
    void measuresNoise();
    void countsClippedFrames_data();
    void countsClippedFrames();
    void drawsTheWaveAndTheSpectrum();
};

void TestDigitMeasuring::measuresNoise_data()
{
    QTest::addColumn<double>("snrDb");
    QTest::addColumn<bool>("hasClockError");
    QTest::newRow("20 dB") << 20.0 << false;
    QTest::newRow("60 dB") << 60.0 << true;
}

void TestDigitMeasuring::measuresNoise()
{
    QFETCH(const double, snrDb);
    const auto digit = measured(capture(snrDb, 0));
    QVERIFY(digit.snrDb);
    QVERIFY2(std::abs(*digit.snrDb - snrDb) < 1, qPrintable(QString::number(*digit.snrDb)));
    QTEST(digit.clockErrorPpm.has_value(), "hasClockError");
    QVERIFY(!digit.clockErrorPpm || std::abs(*digit.clockErrorPpm) < 5);
}

void TestDigitMeasuring::countsClippedFrames_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<qint64>("told");
    QTest::newRow("none") << 0 << qint64{0};
    QTest::newRow("two may be peaks") << 2 << qint64{0};
    QTest::newRow("three") << 3 << qint64{3};
    QTest::newRow("many") << 137 << qint64{137};
}

void TestDigitMeasuring::countsClippedFrames()
{
    QFETCH(const int, count);
    QTEST(measured(capture(60, count)).clippedFrameCount, "told");
}

void TestDigitMeasuring::drawsTheWaveAndTheSpectrum()
{
    const auto digit = measured(capture(60, 0));
    QCOMPARE(digit.lowest.size(), clipFrameCount / 240);
    QCOMPARE(digit.highest.size(), digit.lowest.size());
    QCOMPARE(digit.bandLevelsDbfs.size(), 24);
    QVERIFY(digit.bandLevelsDbfs[1] > digit.bandLevelsDbfs[20] + 30); // tones from 133 Hz on, and none at 10 kHz
}

QTEST_GUILESS_MAIN(TestDigitMeasuring)
#include "tst_digit_measuring.moc"
