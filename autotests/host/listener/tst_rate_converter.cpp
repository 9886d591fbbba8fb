// SPDX-License-Identifier: Apache-2.0
#include "host/listener/rate_converter.h"

#include "host/listener/block_ring.h"

#include <QObject>
#include <QTest>

#include <cmath>
#include <cstdlib>
#include <numbers>

namespace {

constexpr double toneHertz = 1000;

/// A second of the tone on the left, half as loud on the right, in packets of 10 ms.
std::vector<float> convertedTone(std::uint32_t rate)
{
    host::RateConverter converter(rate);
    std::vector<float> converted;
    for (std::uint32_t first = 0; first < rate; first += rate / 100) {
        std::vector<float> packet;
        for (std::uint32_t frame = first; frame < first + rate / 100; ++frame) {
            const double value = 0.5 * std::sin(2 * std::numbers::pi * toneHertz * frame / rate);
            packet.push_back(static_cast<float>(value));
            packet.push_back(static_cast<float>(value / 2));
        }
        const auto ready = converter.convert(packet);
        converted.insert(converted.end(), ready.begin(), ready.end());
    }
    return converted;
}

/// Amplitude of the tone in one channel, from a tenth of a second on.
double amplitudeOf(const std::vector<float> &stereo, std::size_t channel)
{
    double sine = 0;
    double cosine = 0;
    constexpr std::size_t first = host::captureRate / 10;
    constexpr std::size_t count = host::captureRate / 2;
    for (std::size_t frame = first; frame < first + count; ++frame) {
        const double angle = 2 * std::numbers::pi * toneHertz * static_cast<double>(frame) / host::captureRate;
        sine += std::sin(angle) * static_cast<double>(stereo[2 * frame + channel]);
        cosine += std::cos(angle) * static_cast<double>(stereo[2 * frame + channel]);
    }
    return 2 * std::hypot(sine, cosine) / static_cast<double>(count);
}

} // namespace

class TestRateConverter : public QObject {
    Q_OBJECT

private slots:
    void leavesTheCapturesOwnRateAlone();
    void bringsEveryRateToTheCaptures_data();
    void bringsEveryRateToTheCaptures();
};

void TestRateConverter::leavesTheCapturesOwnRateAlone()
{
    host::RateConverter converter(host::captureRate);
    const std::vector<float> stereo{0.1F, -0.2F, 1.5F, 0.0F};
    const auto converted = converter.convert(stereo);
    QCOMPARE(std::vector<float>(converted.begin(), converted.end()), stereo);
}

void TestRateConverter::bringsEveryRateToTheCaptures_data()
{
    QTest::addColumn<quint32>("rate");
    for (const quint32 rate : {44100U, 96000U, 192000U, 16000U})
        QTest::addRow("%u", rate) << rate;
}

void TestRateConverter::bringsEveryRateToTheCaptures()
{
    QFETCH(const quint32, rate);
    const std::vector<float> stereo = convertedTone(rate);
    const auto frameCount = static_cast<int>(stereo.size() / 2);
    QVERIFY2(std::abs(frameCount - static_cast<int>(host::captureRate)) < static_cast<int>(host::captureRate) / 50,
             qPrintable(QString::number(frameCount)));
    QVERIFY2(std::abs(amplitudeOf(stereo, 0) - 0.5) < 0.01, qPrintable(QString::number(amplitudeOf(stereo, 0))));
    QVERIFY2(std::abs(amplitudeOf(stereo, 1) - 0.25) < 0.01, qPrintable(QString::number(amplitudeOf(stereo, 1))));
}

QTEST_GUILESS_MAIN(TestRateConverter)
#include "tst_rate_converter.moc"
