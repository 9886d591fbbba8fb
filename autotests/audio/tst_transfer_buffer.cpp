// SPDX-License-Identifier: Apache-2.0
#include "audio/transfer_buffer.h"
#include "autotests/support/refusing_allocator.h"

#include <QObject>
#include <QTest>

#include <algorithm>
#include <numeric>
#include <vector>

using namespace ostra::audio;
using Bytes = std::vector<std::uint8_t>;

namespace {

constexpr std::uint8_t mark = 0xAA; // what nobody wrote

Bytes counting(std::size_t byteCount)
{
    Bytes bytes(byteCount);
    std::iota(bytes.begin(), bytes.end(), std::uint8_t{1});
    return bytes;
}

std::unique_ptr<std::uint8_t[]> owned(const Bytes &bytes)
{
    auto copy = std::make_unique<std::uint8_t[]>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), copy.get());
    return copy;
}

void give(TransferBuffer &buffer, const Bytes &bytes) { buffer.bind(owned(bytes), static_cast<std::uint32_t>(bytes.size())); }

Bytes contentOf(TransferBuffer &buffer) { return {buffer.data(), buffer.data() + buffer.byteCount()}; }

void capture(TransferBuffer &buffer, Bytes stream)
{
    TransferBuffer::capture(&buffer, stream.data(), static_cast<int>(stream.size()));
}

Bytes playback(TransferBuffer &buffer, std::size_t byteCount)
{
    Bytes stream(byteCount, mark);
    TransferBuffer::playback(&buffer, stream.data(), static_cast<int>(byteCount));
    return stream;
}

// Every way of cutting the stream into equal pieces, up to one byte more than the buffer holds.
void addPieceSizes()
{
    QTest::addColumn<std::size_t>("pieceByteCount");
    for (std::size_t size = 1; size <= 17; ++size)
        QTest::addRow("%zu bytes at a time", size) << size;
}

} // namespace

class TestTransferBuffer : public QObject {
    Q_OBJECT

private slots:
    void keepsWhatIsCapturedUpToTheLastByte_data() { addPieceSizes(); }
    void keepsWhatIsCapturedUpToTheLastByte();
    void handsOutEverythingButTheLastByte_data() { addPieceSizes(); }
    void handsOutEverythingButTheLastByte();
    void leavesTheRestOfTheStreamAsItWas();
    void leavesTheWholeStreamAloneAtTheEnd();
    void doesNothingWithOneByteOrNone_data();
    void doesNothingWithOneByteOrNone();
    void anEmptyCaptureEndsTheRecording();
    void anEmptyPlaybackChangesNothing();
    void startsAgainWhenBoundAgain();
    void doesNothingWhenUnbound();
    void aLeaseEndsWithItsScope();
    void allocatesNothing();
};

void TestTransferBuffer::keepsWhatIsCapturedUpToTheLastByte()
{
    QFETCH(const std::size_t, pieceByteCount);
    TransferBuffer buffer;
    give(buffer, Bytes(16, mark));
    const Bytes given = counting(64);
    for (std::size_t at = 0; at + pieceByteCount <= given.size(); at += pieceByteCount) {
        const auto begin = given.begin() + static_cast<std::ptrdiff_t>(at);
        capture(buffer, Bytes(begin, begin + static_cast<std::ptrdiff_t>(pieceByteCount)));
        QVERIFY(buffer.position() <= 15U);
    }
    Bytes expected = counting(16);
    expected.back() = mark;
    QCOMPARE(contentOf(buffer), expected);
    QCOMPARE(buffer.position(), 15U);
}

void TestTransferBuffer::handsOutEverythingButTheLastByte()
{
    QFETCH(const std::size_t, pieceByteCount);
    TransferBuffer buffer;
    give(buffer, counting(16));
    Bytes heard;
    while (heard.size() < 32) {
        const Bytes piece = playback(buffer, pieceByteCount);
        heard.insert(heard.end(), piece.begin(), piece.end());
    }
    Bytes expected(heard.size(), mark);
    std::iota(expected.begin(), expected.begin() + 15, std::uint8_t{1});
    QCOMPARE(heard, expected);
}

void TestTransferBuffer::leavesTheRestOfTheStreamAsItWas()
{
    TransferBuffer buffer;
    give(buffer, counting(4));
    QCOMPARE(playback(buffer, 6), (Bytes{1, 2, 3, mark, mark, mark}));
}

void TestTransferBuffer::leavesTheWholeStreamAloneAtTheEnd()
{
    TransferBuffer buffer;
    give(buffer, counting(4));
    playback(buffer, 3);
    QCOMPARE(playback(buffer, 3), Bytes(3, mark));
    QCOMPARE(buffer.position(), 3U);
}

void TestTransferBuffer::doesNothingWithOneByteOrNone_data()
{
    QTest::addColumn<std::size_t>("byteCount");
    QTest::newRow("none") << std::size_t{0};
    QTest::newRow("one") << std::size_t{1};
}

void TestTransferBuffer::doesNothingWithOneByteOrNone()
{
    QFETCH(const std::size_t, byteCount);
    TransferBuffer buffer;
    give(buffer, Bytes(byteCount, mark));
    capture(buffer, counting(8));
    TransferBuffer::capture(&buffer, nullptr, 0);
    QCOMPARE(playback(buffer, 8), Bytes(8, mark));
    QCOMPARE(contentOf(buffer), Bytes(byteCount, mark));
    QCOMPARE(buffer.position(), 0U);
}

void TestTransferBuffer::anEmptyCaptureEndsTheRecording()
{
    TransferBuffer buffer;
    give(buffer, Bytes(16, mark));
    capture(buffer, {1, 2, 3});
    TransferBuffer::capture(&buffer, nullptr, 0);
    QCOMPARE(buffer.position(), 15U);
    capture(buffer, {4, 5});
    Bytes expected(16, mark);
    std::iota(expected.begin(), expected.begin() + 3, std::uint8_t{1});
    QCOMPARE(contentOf(buffer), expected);
}

void TestTransferBuffer::anEmptyPlaybackChangesNothing()
{
    TransferBuffer buffer;
    give(buffer, counting(16));
    playback(buffer, 0);
    QCOMPARE(playback(buffer, 2), (Bytes{1, 2}));
}

void TestTransferBuffer::startsAgainWhenBoundAgain()
{
    TransferBuffer buffer;
    give(buffer, Bytes(16, mark));
    capture(buffer, counting(9));
    give(buffer, Bytes(4, mark));
    QCOMPARE(buffer.position(), 0U);
    capture(buffer, {7, 8});
    QCOMPARE(contentOf(buffer), (Bytes{7, 8, mark, mark}));
}

void TestTransferBuffer::doesNothingWhenUnbound()
{
    TransferBuffer buffer;
    give(buffer, counting(16));
    buffer.unbind();
    capture(buffer, counting(8)); // a device that was lost is still called
    QCOMPARE(playback(buffer, 8), Bytes(8, mark));
}

void TestTransferBuffer::aLeaseEndsWithItsScope()
{
    TransferBuffer buffer;
    {
        const TransferLease lease(buffer, owned(counting(16)), 16);
        QCOMPARE(buffer.byteCount(), 16U);
    }
    QCOMPARE(buffer.byteCount(), 0U);
    QVERIFY(buffer.data() == nullptr);
}

void TestTransferBuffer::allocatesNothing()
{
    TransferBuffer buffer;
    give(buffer, counting(4096));
    Bytes stream(100, mark);
    constexpr int manyAllocations = 1000;
    refusing_allocator::allocationsUntilFailure = manyAllocations;
    for (int call = 0; call < 50; ++call) {
        TransferBuffer::capture(&buffer, stream.data(), 100);
        TransferBuffer::playback(&buffer, stream.data(), 100);
    }
    TransferBuffer::capture(&buffer, nullptr, 0);
    const int left = refusing_allocator::allocationsUntilFailure;
    refusing_allocator::allocationsUntilFailure = -1;
    QCOMPARE(left, manyAllocations);
}

QTEST_GUILESS_MAIN(TestTransferBuffer)
#include "tst_transfer_buffer.moc"
