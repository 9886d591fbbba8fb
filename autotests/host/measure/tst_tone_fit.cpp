// SPDX-License-Identifier: Apache-2.0
#include "host/measure/tone_fit.h"

#include <QObject>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>
#include <vector>

namespace {

using Sound = std::vector<float>;

constexpr std::uint32_t rate = 48'000;
constexpr int frameCount = 24'000;
constexpr double pi = std::numbers::pi;

Sound tone(double frequency, double amplitude, double offset = 0)
{
    Sound sound;
    for (int frame = 0; frame < frameCount; ++frame)
        sound.push_back(static_cast<float>(offset + amplitude * std::sin(2 * pi * frequency * frame / rate + 0.7)));
    return sound;
}

void addTone(Sound &sound, double frequency, double amplitude)
{
    const Sound other = tone(frequency, amplitude);
    for (std::size_t index = 0; index < sound.size(); ++index)
        sound[index] += other[index];
}

void addNoise(Sound &sound, double deviation)
{
    std::mt19937 random(11);
    std::normal_distribution<double> noise(0, deviation);
    for (float &sample : sound)
        sample += static_cast<float>(noise(random));
}

} // namespace

class TestToneFit : public QObject {
    Q_OBJECT

private slots:
    void findsFrequencyAndAmplitude_data();
    void findsFrequencyAndAmplitude();
    void measuresDistortionAndNoise_data();
    void measuresDistortionAndNoise();
    void countsNoOffset();
    void measuresClipping();
    void fitsNothingWhereThereIsNoTone();
};

void TestToneFit::findsFrequencyAndAmplitude_data()
{
    QTest::addColumn<double>("frequency");
    QTest::addColumn<double>("guess");
    QTest::newRow("as guessed") << 997.0 << 997.0;
    QTest::newRow("a little higher") << 997.6 << 997.0;
    QTest::newRow("low") << 62.9 << 63.0;
    QTest::newRow("high") << 18'000.4 << 18'000.0;
}

void TestToneFit::findsFrequencyAndAmplitude()
{
    QFETCH(const double, frequency);
    QFETCH(const double, guess);
    const auto fit = measure::fitTone(tone(frequency, 0.25), rate, guess);
    QVERIFY(fit);
    QVERIFY2(std::abs(fit->frequency - frequency) < 1e-3, qPrintable(QString::number(fit->frequency, 'f', 6)));
    QVERIFY(std::abs(fit->amplitude - 0.25) < 1e-4);
    QVERIFY2(fit->thdPlusNoiseDb < -120, qPrintable(QString::number(fit->thdPlusNoiseDb))); // of single precision
}

void TestToneFit::measuresDistortionAndNoise_data()
{
    QTest::addColumn<double>("secondDb"); // of the tone's amplitude
    QTest::addColumn<double>("thirdDb");
    QTest::addColumn<double>("noiseDb"); // of the tone's power
    for (const double level : {-10.0, -20.0, -40.0, -60.0, -80.0}) {
        QTest::addRow("second harmonic at %.0f dB", level) << level << -200.0 << -200.0;
        QTest::addRow("noise at %.0f dB", level) << -200.0 << -200.0 << level;
    }
    QTest::newRow("all three") << -40.0 << -46.0 << -43.0;
}

void TestToneFit::measuresDistortionAndNoise()
{
    QFETCH(const double, secondDb);
    QFETCH(const double, thirdDb);
    QFETCH(const double, noiseDb);
    const auto ratio = [](double level) { return std::pow(10, level / 20); };
    Sound sound = tone(997, 0.5);
    addTone(sound, 2 * 997, 0.5 * ratio(secondDb));
    addTone(sound, 3 * 997, 0.5 * ratio(thirdDb));
    addNoise(sound, 0.5 / std::numbers::sqrt2 * ratio(noiseDb));
    const auto square = [&ratio](double level) { return ratio(level) * ratio(level); };
    const double rest = square(secondDb) + square(thirdDb) + square(noiseDb);
    const double expected = 10 * std::log10(rest / (1 + rest));
    const auto fit = measure::fitTone(sound, rate, 997);
    QVERIFY(fit);
    QVERIFY2(std::abs(fit->thdPlusNoiseDb - expected) < 0.2,
             qPrintable(QStringLiteral("%1 instead of %2").arg(fit->thdPlusNoiseDb).arg(expected)));
}

void TestToneFit::countsNoOffset()
{
    const auto fit = measure::fitTone(tone(440, 0.3, 0.2), rate, 440);
    QVERIFY(fit);
    QVERIFY2(fit->thdPlusNoiseDb < -120, qPrintable(QString::number(fit->thdPlusNoiseDb)));
    QVERIFY(std::abs(fit->amplitude - 0.3) < 1e-4);
}

// A sine of amplitude 1 cut off at 1/2 has the distortion of its Fourier series: power 1/12 + cos(asin(1/2)) terms, in closed form.
void TestToneFit::measuresClipping()
{
    Sound sound = tone(100, 1);
    for (float &sample : sound)
        sample = std::clamp(sample, -0.5F, 0.5F);
    const double angle = std::asin(0.5); // where the cut begins
    const double power = (2 / pi) * (angle / 2 - std::sin(2 * angle) / 4) + 0.25 * (1 - 2 * angle / pi);
    const double fundamental = (2 / pi) * (angle - std::sin(2 * angle) / 2 + std::cos(angle)); // peak
    const double rest = power - fundamental * fundamental / 2;
    const auto fit = measure::fitTone(sound, rate, 100);
    QVERIFY(fit);
    QVERIFY2(std::abs(fit->amplitude - fundamental) < 1e-3, qPrintable(QString::number(fit->amplitude)));
    QVERIFY2(std::abs(fit->thdPlusNoiseDb - 10 * std::log10(rest / power)) < 0.1,
             qPrintable(QString::number(fit->thdPlusNoiseDb)));
}

void TestToneFit::fitsNothingWhereThereIsNoTone()
{
    QVERIFY(!measure::fitTone(Sound(frameCount, 0.0F), rate, 997));
    QVERIFY(!measure::fitTone({}, rate, 997));
    QVERIFY(!measure::fitTone(tone(997, 0.5), rate, 0));
    QVERIFY(!measure::fitTone(tone(997, 0.5), rate, rate / 2.0));
    QVERIFY(!measure::fitTone(tone(997, 0.5), rate, 5)); // 2.5 periods
}

QTEST_GUILESS_MAIN(TestToneFit)
#include "tst_tone_fit.moc"
