// SPDX-License-Identifier: Apache-2.0
#include "host/listener/rate_converter.h"

#include "host/listener/block_ring.h"

#include <QObject>
#include <QTest>

#include <cmath>
#include <numbers>

namespace {

/// A second of a tone, half as loud on the right, in packets of 10 ms.
std::vector<float> convertedTone(std::uint32_t rate, double hertz)
{
    host::RateConverter converter(rate);
    std::vector<float> converted;
    for (std::uint32_t first = 0; first < rate; first += rate / 100) {
        std::vector<float> packet;
        for (std::uint32_t frame = first; frame < first + rate / 100; ++frame) {
            const double value = 0.5 * std::sin(2 * std::numbers::pi * hertz * frame / rate);
            packet.push_back(static_cast<float>(value));
            packet.push_back(static_cast<float>(value / 2));
        }
        const auto ready = converter.convert(packet);
        converted.insert(converted.end(), ready.begin(), ready.end());
    }
    return converted;
}

/// The tone that one channel should hold is taken away, from a tenth of a second on; what is left, in dB below full scale.
double residualDbfs(const std::vector<float> &stereo, std::size_t channel, double hertz)
{
    double power = 0;
    constexpr std::size_t first = host::captureRate / 10;
    constexpr std::size_t count = host::captureRate * 4 / 5;
    for (std::size_t frame = first; frame < first + count; ++frame) {
        const double time = static_cast<double>(frame) / host::captureRate;
        const double wanted = (channel == 0 ? 0.5 : 0.25) * std::sin(2 * std::numbers::pi * hertz * time);
        power += std::pow(static_cast<double>(stereo[2 * frame + channel]) - wanted, 2);
    }
    return 10 * std::log10(power / static_cast<double>(count));
}

double levelDbfs(const std::vector<float> &stereo)
{
    double power = 0;
    for (std::size_t index = stereo.size() / 10; index < stereo.size(); index += 2)
        power += std::pow(static_cast<double>(stereo[index]), 2);
    return 10 * std::log10(power / (0.45 * static_cast<double>(stereo.size())));
}

} // namespace

class TestRateConverter : public QObject {
    Q_OBJECT

private slots:
    void leavesTheCapturesOwnRateAlone();
    void bringsEveryRateToTheCaptures_data();
    void bringsEveryRateToTheCaptures();
    void letsNothingFoldBack();
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
    QTest::addColumn<double>("hertz");
    for (const quint32 rate : {44100U, 88200U, 96000U, 192000U, 16000U, 44300U}) {
        for (const double hertz : {60.0, 1000.0, 6000.0})
            QTest::addRow("%u, %.0f Hz", rate, hertz) << rate << hertz;
    }
}

// Also over a hundred packets no frame is lost or moved: the tone that comes out is the very one that was meant.
void TestRateConverter::bringsEveryRateToTheCaptures()
{
    QFETCH(const quint32, rate);
    QFETCH(const double, hertz);
    const std::vector<float> stereo = convertedTone(rate, hertz);
    const auto missing = static_cast<int>(host::captureRate) - static_cast<int>(stereo.size() / 2);
    QVERIFY2(missing >= 0 && missing < 130, qPrintable(QString::number(missing))); // 32 crossings of the slower rate
    for (const std::size_t channel : {0U, 1U}) {
        const double residual = residualDbfs(stereo, channel, hertz);
        QVERIFY2(residual < -70, qPrintable(QString::number(residual)));
    }
}

// 30 kHz has no place at 48 000 frames a second.
void TestRateConverter::letsNothingFoldBack()
{
    const double level = levelDbfs(convertedTone(96000, 30000));
    QVERIFY2(level < -70, qPrintable(QString::number(level)));
}

QTEST_GUILESS_MAIN(TestRateConverter)
#include "tst_rate_converter.moc"
