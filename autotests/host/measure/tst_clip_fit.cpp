// SPDX-License-Identifier: Apache-2.0
#include "host/measure/clip_fit.h"

#include <QObject>
#include <QTest>

#include <cmath>
#include <numbers>
#include <random>
#include <vector>

namespace {

using Sound = std::vector<float>;

constexpr double rate = 48'000;
constexpr std::int64_t clipFrameCount = 40'000;

/// A voice in closed form, so that it can be sampled anywhere exactly: gliding harmonics that swell and fade, with silent ends.
double voice(double frame)
{
    const double seconds = frame / rate;
    const double length = clipFrameCount / rate;
    if (seconds < 0.1 || seconds > length - 0.1)
        return 0;
    const double inner = (seconds - 0.1) / (length - 0.2);
    const double swell = std::pow(std::sin(std::numbers::pi * inner), 2);
    double sum = 0;
    for (int harmonic = 1; harmonic <= 30; ++harmonic)
        sum += std::sin(2 * std::numbers::pi * harmonic * (130 * seconds + 20 * seconds * seconds) + harmonic * harmonic) /
               harmonic;
    return 0.2 * swell * sum;
}

Sound clipSound()
{
    Sound clip;
    for (std::int64_t frame = 0; frame < clipFrameCount; ++frame)
        clip.push_back(static_cast<float>(voice(static_cast<double>(frame))));
    return clip;
}

struct Making {
    double delay = 4800;
    double gain = 1;
    double ppm = 0; ///< of the clock that plays: above 0 too fast
    double snrDb = 200;
};

double powerOf(const Sound &sound, std::size_t count)
{
    double sum = 0;
    for (const float sample : sound)
        sum += double{sample} * double{sample};
    return sum / static_cast<double>(count);
}

Sound capture(const Making &making)
{
    Sound sound;
    for (int frame = 0; frame < 60'000; ++frame)
        sound.push_back(static_cast<float>(making.gain * voice((frame - making.delay) * (1 + making.ppm * 1e-6))));
    std::mt19937 random(7);
    const double noisePower = powerOf(sound, static_cast<std::size_t>(clipFrameCount)) * std::pow(10, -making.snrDb / 10);
    std::normal_distribution<double> noise(0, std::sqrt(noisePower));
    for (float &sample : sound)
        sample += making.snrDb < 200 ? static_cast<float>(noise(random)) : 0.0F;
    return sound;
}

std::optional<measure::ClipFit> fit(const Making &making, std::int64_t guess = 4810)
{
    return measure::fitClip(capture(making), clipSound(), guess);
}

} // namespace

class TestClipFit : public QObject {
    Q_OBJECT

private slots:
    void measuresTheSignalToNoiseRatio_data();
    void measuresTheSignalToNoiseRatio();
    void findsTheDelay_data();
    void findsTheDelay();
    void findsTheClockError_data();
    void findsTheClockError();
    void findsGainAndPolarity();
    void fitsNothingToSilence();
    void takesAClipThatTheCaptureCutsOff();
};

void TestClipFit::measuresTheSignalToNoiseRatio_data()
{
    QTest::addColumn<double>("snrDb");
    for (const double snr : {10.0, 20.0, 30.0, 40.0, 50.0, 60.0})
        QTest::addRow("%.0f dB", snr) << snr;
}

void TestClipFit::measuresTheSignalToNoiseRatio()
{
    QFETCH(const double, snrDb);
    const auto found = fit({4800.37, 0.5, 0, snrDb});
    QVERIFY(found);
    QVERIFY2(std::abs(found->snrDb - snrDb) < 1, qPrintable(QString::number(found->snrDb)));
}

void TestClipFit::findsTheDelay_data()
{
    QTest::addColumn<double>("delay");
    QTest::addColumn<double>("snrDb");
    for (const double delay : {4800.0, 4800.5, 4777.123, 4890.9}) {
        QTest::addRow("%.3f frames", delay) << delay << 200.0;
        QTest::addRow("%.3f frames in noise", delay) << delay << 20.0;
    }
}

void TestClipFit::findsTheDelay()
{
    QFETCH(const double, delay);
    QFETCH(const double, snrDb);
    const auto found = fit({delay, 0.7, 0, snrDb}, 4820);
    QVERIFY(found);
    const double tolerance = snrDb > 100 ? 0.002 : 0.1; // frames; 1 ms are 48
    QVERIFY2(std::abs(found->delay - delay) < tolerance, qPrintable(QString::number(found->delay, 'f', 5)));
}

void TestClipFit::findsTheClockError_data()
{
    QTest::addColumn<double>("ppm");
    QTest::addColumn<double>("snrDb");
    for (const double ppm : {-300.0, -50.0, 0.0, 5.0, 100.0, 500.0}) {
        QTest::addRow("%.0f ppm", ppm) << ppm << 200.0;
        QTest::addRow("%.0f ppm at 45 dB", ppm) << ppm << 45.0;
    }
}

void TestClipFit::findsTheClockError()
{
    QFETCH(const double, ppm);
    QFETCH(const double, snrDb);
    const auto found = fit({4800.25, 0.5, ppm, snrDb});
    QVERIFY(found);
    QVERIFY2(std::abs(-found->stretch * 1e6 - ppm) < 5, qPrintable(QString::number(-found->stretch * 1e6)));
    QVERIFY2(found->snrDb > measure::minStretchSnrDb, qPrintable(QString::number(found->snrDb)));
}

void TestClipFit::findsGainAndPolarity()
{
    const auto found = fit({4800, -0.25, 0, 200});
    QVERIFY(found);
    QVERIFY(std::abs(found->gain + 0.25) < 1e-4);
    QVERIFY(found->snrDb > 80);
    QVERIFY(found->residualPower < 1e-10);
}

void TestClipFit::fitsNothingToSilence()
{
    QVERIFY(!measure::fitClip(Sound(10'000, 0.0F), clipSound(), 100));
    QVERIFY(!measure::fitClip(capture({}), Sound(1000, 0.0F), 100));
    QVERIFY(!measure::fitClip({}, {}, 0));
}

void TestClipFit::takesAClipThatTheCaptureCutsOff()
{
    Sound sound = capture({});
    sound.resize(30'000);
    const auto found = measure::fitClip(sound, clipSound(), 4800);
    QVERIFY(found);
    QVERIFY(found->snrDb < 20);
    QVERIFY(measure::fitClip(sound, clipSound(), -100'000) == std::nullopt);
}

QTEST_GUILESS_MAIN(TestClipFit)
#include "tst_clip_fit.moc"
