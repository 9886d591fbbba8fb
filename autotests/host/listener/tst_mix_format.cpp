// SPDX-License-Identifier: Apache-2.0
#include "host/listener/mix_format.h"

#include <QObject>
#include <QTest>

#include <bit>
#include <cmath>
#include <initializer_list>
#include <limits>

using host::MixFormat;
using host::SampleKind;

namespace {

/// A packet as a system hands it over: samples of so many bytes each, the lowest byte first.
std::vector<std::byte> packet(std::size_t byteCount, std::initializer_list<std::uint32_t> samples)
{
    std::vector<std::byte> bytes;
    for (const std::uint32_t sample : samples) {
        for (std::size_t index = 0; index < byteCount; ++index)
            bytes.push_back(static_cast<std::byte>((sample >> (8 * index)) & 0xFFU));
    }
    return bytes;
}

std::uint32_t bitsOf(float value) { return std::bit_cast<std::uint32_t>(value); }

std::vector<float> stereoOf(const std::vector<std::byte> &bytes, const MixFormat &format)
{
    std::vector<float> stereo;
    host::appendStereo(bytes, format, stereo);
    return stereo;
}

} // namespace

class TestMixFormat : public QObject {
    Q_OBJECT

private slots:
    void readsFloatingPoint();
    void readsWholeNumbers_data();
    void readsWholeNumbers();
    void takesTheFrontChannels();
    void makesTwoOfOneChannel();
    void takesNoNumberForSilence();
    void leavesOutAFrameThatIsCutOff();
    void readsNothingOfAnUnknownFormat();
    void appends();
};

void TestMixFormat::readsFloatingPoint()
{
    const auto bytes = packet(4, {bitsOf(0.25F), bitsOf(-1.5F)}); // a mixer may go beyond full scale
    QCOMPARE(stereoOf(bytes, {SampleKind::float32, 2, 48000}), (std::vector<float>{0.25F, -1.5F}));
}

void TestMixFormat::readsWholeNumbers_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("byteCount");
    QTest::addColumn<quint32>("half");
    QTest::addColumn<quint32>("lowest");
    QTest::newRow("16 bits") << static_cast<int>(SampleKind::int16) << 2 << 0x4000U << 0x8000U;
    QTest::newRow("24 bits") << static_cast<int>(SampleKind::int24) << 3 << 0x400000U << 0x800000U;
    QTest::newRow("32 bits") << static_cast<int>(SampleKind::int32) << 4 << 0x40000000U << 0x80000000U;
}

void TestMixFormat::readsWholeNumbers()
{
    QFETCH(const int, kind);
    QFETCH(const int, byteCount);
    QFETCH(const quint32, half);
    QFETCH(const quint32, lowest);
    const auto bytes = packet(static_cast<std::size_t>(byteCount), {half, lowest, 0, 0U - half});
    QCOMPARE(stereoOf(bytes, {static_cast<SampleKind>(kind), 2, 44100}), (std::vector<float>{0.5F, -1.0F, 0.0F, -0.5F}));
}

void TestMixFormat::takesTheFrontChannels()
{
    const auto bytes = packet(2, {0x1000, 0x2000, 1, 2, 3, 4, 0x3000, 0x4000, 5, 6, 7, 8});
    QCOMPARE(stereoOf(bytes, {SampleKind::int16, 6, 48000}), (std::vector<float>{0.125F, 0.25F, 0.375F, 0.5F}));
}

void TestMixFormat::makesTwoOfOneChannel()
{
    QCOMPARE(stereoOf(packet(2, {0x1000, 0x2000}), {SampleKind::int16, 1, 48000}),
             (std::vector<float>{0.125F, 0.125F, 0.25F, 0.25F}));
}

void TestMixFormat::takesNoNumberForSilence()
{
    const auto bytes = packet(4, {bitsOf(std::numeric_limits<float>::quiet_NaN()), bitsOf(HUGE_VALF)});
    QCOMPARE(stereoOf(bytes, {SampleKind::float32, 2, 48000}), (std::vector<float>{0.0F, 0.0F}));
}

void TestMixFormat::leavesOutAFrameThatIsCutOff()
{
    QCOMPARE(stereoOf(packet(2, {0x1000, 0x2000, 0x3000}), {SampleKind::int16, 2, 48000}), (std::vector<float>{0.125F, 0.25F}));
}

void TestMixFormat::readsNothingOfAnUnknownFormat()
{
    const auto bytes = packet(2, {1, 2});
    QVERIFY(stereoOf(bytes, {SampleKind::unknown, 2, 48000}).empty());
    QVERIFY(stereoOf(bytes, {SampleKind::int16, 0, 48000}).empty());
}

void TestMixFormat::appends()
{
    std::vector<float> stereo{1.0F, 1.0F};
    host::appendStereo(packet(2, {0x4000, 0x4000}), {SampleKind::int16, 2, 48000}, stereo);
    QCOMPARE(stereo, (std::vector<float>{1.0F, 1.0F, 0.5F, 0.5F}));
}

QTEST_GUILESS_MAIN(TestMixFormat)
#include "tst_mix_format.moc"
