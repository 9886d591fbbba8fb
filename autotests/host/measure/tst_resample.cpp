// SPDX-License-Identifier: Apache-2.0
#include "host/measure/resample.h"

#include <QObject>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

std::vector<float> tone(double hertz, std::uint32_t rate, std::size_t frameCount)
{
    std::vector<float> samples(frameCount);
    for (std::size_t frame = 0; frame < frameCount; ++frame)
        samples[frame] =
            static_cast<float>(std::sin(2 * std::numbers::pi * hertz * static_cast<double>(frame) / static_cast<double>(rate)));
    return samples;
}

/// The middle half, where the filter sees no end.
std::span<const float> middle(const std::vector<float> &samples)
{
    return std::span(samples).subspan(samples.size() / 4, samples.size() / 2);
}

double largest(std::span<const float> samples)
{
    double value = 0;
    for (const float sample : samples)
        value = std::max(value, std::abs(double{sample}));
    return value;
}

} // namespace

class TestResample : public QObject {
    Q_OBJECT

private slots:
    void keepsTimeAndLevel_data();
    void keepsTimeAndLevel();
    void removesWhatWouldFoldBack_data();
    void removesWhatWouldFoldBack();
    void roundsTheLengthUp();
    void refusesRatesOutsideItsRange();
};

void TestResample::keepsTimeAndLevel_data()
{
    QTest::addColumn<unsigned>("rate");
    QTest::addColumn<double>("hertz");
    for (const unsigned rate : {8000U, 11025U, 16000U, 22050U, 44100U, 44101U, 48000U, 96000U, 192000U}) {
        for (const double hertz : {150.0, 1000.0, 2900.0})
            QTest::addRow("%.0f Hz at %u", hertz, rate) << rate << hertz;
    }
    QTest::addRow("1000 Hz at 4000") << 4000U << 1000.0;
}

void TestResample::keepsTimeAndLevel()
{
    QFETCH(const unsigned, rate);
    QFETCH(const double, hertz);
    const std::vector<float> resampled = measure::toAnalysisRate(tone(hertz, rate, rate / 2), rate);
    const std::vector<float> expected = tone(hertz, measure::analysisRate, resampled.size());
    double worst = 0;
    for (std::size_t frame = resampled.size() / 4; frame < 3 * resampled.size() / 4; ++frame)
        worst = std::max(worst, std::abs(double{resampled[frame]} - double{expected[frame]}));
    QVERIFY2(worst < 0.005, qPrintable(QString::number(worst)));
}

void TestResample::removesWhatWouldFoldBack_data()
{
    QTest::addColumn<unsigned>("rate");
    QTest::addColumn<double>("hertz");
    for (const unsigned rate : {11025U, 44100U, 48000U}) {
        for (const double hertz : {4100.0, 5000.0})
            QTest::addRow("%.0f Hz at %u", hertz, rate) << rate << hertz;
    }
    QTest::addRow("20 kHz at 48000") << 48000U << 20000.0;
}

void TestResample::removesWhatWouldFoldBack()
{
    QFETCH(const unsigned, rate);
    QFETCH(const double, hertz);
    const std::vector<float> resampled = measure::toAnalysisRate(tone(hertz, rate, rate / 2), rate);
    const double level = largest(middle(resampled));
    constexpr double minus70Decibels = 3.2e-4;
    QVERIFY2(level < minus70Decibels, qPrintable(QString::number(level)));
}

void TestResample::roundsTheLengthUp()
{
    QVERIFY(measure::toAnalysisRate({}, 48000).empty());
    QCOMPARE(measure::toAnalysisRate(std::vector<float>(1), 48000).size(), std::size_t{1});
    QCOMPARE(measure::toAnalysisRate(std::vector<float>(12), 48000).size(), std::size_t{2});
    QCOMPARE(measure::toAnalysisRate(std::vector<float>(13), 48000).size(), std::size_t{3});
    QCOMPARE(measure::toAnalysisRate(std::vector<float>(44100), 44100).size(), std::size_t{8000});
}

void TestResample::refusesRatesOutsideItsRange()
{
    const std::vector<float> samples(1000, 0.5F);
    QVERIFY(measure::toAnalysisRate(samples, 0).empty());
    QVERIFY(measure::toAnalysisRate(samples, measure::minResampleRate - 1).empty());
    QVERIFY(measure::toAnalysisRate(samples, 768'001).empty());
    QVERIFY(!measure::toAnalysisRate(samples, measure::minResampleRate).empty());
    QVERIFY(!measure::toAnalysisRate(samples, 768'000).empty());
}

QTEST_GUILESS_MAIN(TestResample)
#include "tst_resample.moc"
