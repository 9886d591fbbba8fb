// SPDX-License-Identifier: Apache-2.0
#include "host/listener/block_ring.h"

#include <QObject>
#include <QTest>

#include <chrono>
#include <thread>
#include <vector>

using namespace std::chrono_literals;
using host::BlockRing;
using host::SoundBlock;

namespace {

std::vector<float> frames(std::size_t count, float first)
{
    std::vector<float> samples(count * host::captureChannelCount);
    for (std::size_t index = 0; index < samples.size(); ++index)
        samples[index] = first + static_cast<float>(index);
    return samples;
}

} // namespace

class TestBlockRing : public QObject {
    Q_OBJECT

private slots:
    void isEmptyAtFirst();
    void handsBlocksOverInOrder();
    void splitsWhatIsTooLongForABlock();
    void tellsHeardSilenceFromUnheard();
    void countsWhatItCannotHold();
    void losesNothingBetweenTwoThreads();
};

void TestBlockRing::isEmptyAtFirst()
{
    const BlockRing ring;
    QVERIFY(ring.oldest() == nullptr);
}

void TestBlockRing::handsBlocksOverInOrder()
{
    BlockRing ring;
    ring.write(frames(3, 1), host::SteadyTime(5s));
    ring.write(frames(2, 100), host::SteadyTime(6s));
    QCOMPARE(ring.oldest()->frames().size(), std::size_t{6});
    QCOMPARE(ring.oldest()->frames()[5], 6.0F);
    QVERIFY(ring.oldest()->end == host::SteadyTime(5s));
    ring.release();
    QCOMPARE(ring.oldest()->frames()[0], 100.0F);
    ring.release();
    QVERIFY(ring.oldest() == nullptr);
}

void TestBlockRing::tellsHeardSilenceFromUnheard()
{
    BlockRing ring;
    ring.write(frames(3, 0), host::SteadyTime(5s));
    ring.write(frames(SoundBlock::maxFrameCount + 1, 0), host::SteadyTime(6s), false);
    ring.write(frames(3, 0), host::SteadyTime(7s), true);
    for (const bool isHeard : {true, false, false, true}) {
        QCOMPARE(ring.oldest()->isHeard, isHeard);
        ring.release();
    }
}

void TestBlockRing::splitsWhatIsTooLongForABlock()
{
    BlockRing ring;
    const std::size_t more = host::captureRate / 100;
    ring.write(frames(SoundBlock::maxFrameCount + more, 0), host::SteadyTime(5s));
    QCOMPARE(ring.oldest()->frameCount, SoundBlock::maxFrameCount);
    QVERIFY(ring.oldest()->end == host::SteadyTime(4990ms));
    ring.release();
    QCOMPARE(ring.oldest()->frameCount, more);
    QVERIFY(ring.oldest()->end == host::SteadyTime(5s));
}

void TestBlockRing::countsWhatItCannotHold()
{
    BlockRing ring;
    const std::vector<float> block = frames(SoundBlock::maxFrameCount, 0);
    std::size_t written = 0;
    while (ring.droppedFrameCount() == 0 && written < 10'000) {
        ring.write(block, {});
        ++written;
    }
    QCOMPARE(ring.droppedFrameCount(), std::uint64_t{SoundBlock::maxFrameCount});
    QVERIFY((written - 1) * SoundBlock::maxFrameCount >= 5 * host::captureRate);
    ring.release();
    ring.write(block, {});
    QCOMPARE(ring.droppedFrameCount(), std::uint64_t{SoundBlock::maxFrameCount});
}

void TestBlockRing::losesNothingBetweenTwoThreads()
{
    constexpr int blockCount = 20'000;
    BlockRing ring;
    std::thread writer([&ring] {
        for (int number = 0; number < blockCount;) {
            const std::uint64_t dropped = ring.droppedFrameCount();
            ring.write(std::vector<float>(8, static_cast<float>(number)), {});
            if (ring.droppedFrameCount() == dropped)
                ++number;
            else
                std::this_thread::yield();
        }
    });
    int wrong = 0;
    for (int number = 0; number < blockCount;) {
        if (const SoundBlock *block = ring.oldest()) {
            wrong += block->frames()[0] != static_cast<float>(number) || block->frames()[7] != static_cast<float>(number);
            ring.release();
            ++number;
        }
    }
    writer.join();
    QCOMPARE(wrong, 0);
    QVERIFY(ring.oldest() == nullptr);
}

QTEST_GUILESS_MAIN(TestBlockRing)
#include "tst_block_ring.moc"
