// SPDX-License-Identifier: Apache-2.0
#include "host/listener/loopback_timeline.h"

#include <QObject>
#include <QTest>

#include <algorithm>
#include <cstdlib>

using namespace std::chrono_literals;
using host::LoopbackStretch;
using host::LoopbackTimeline;
using host::SteadyTime;

namespace {

constexpr std::uint32_t rate = 44100;
constexpr std::size_t packetFrameCount = 441; // 10 ms
const SteadyTime start{1000s};

/// What a listener gets when it looks every 10 ms.
class Capture {
public:
    /// For so long either packets come or none.
    void pass(std::chrono::milliseconds length, bool isPlaying)
    {
        for (auto passed = 0ms; passed < length; passed += 10ms)
            look(10ms, isPlaying ? packetFrameCount : 0);
    }
    void look(std::chrono::milliseconds later, std::size_t frameCount)
    {
        now_ += later;
        for (LoopbackStretch &stretch : timeline_.advance(std::vector<float>(frameCount * 2, 0.5F), now_))
            stretches_.push_back(std::move(stretch));
    }

    SteadyTime now() const { return now_; }
    const std::vector<LoopbackStretch> &stretches() const { return stretches_; }
    std::int64_t frameCount() const
    {
        return countIf([](const LoopbackStretch &) { return true; });
    }
    std::int64_t heardFrameCount() const
    {
        return countIf([](const LoopbackStretch &stretch) { return stretch.isHeard; });
    }
    std::int64_t soundFrameCount() const { return countIf(isSound); }
    static bool isSound(const LoopbackStretch &stretch) { return stretch.stereo.front() != 0.0F; }

private:
    template <typename Condition>
    std::int64_t countIf(Condition isWanted) const
    {
        std::int64_t count = 0;
        for (const LoopbackStretch &stretch : stretches_)
            count += isWanted(stretch) ? std::ssize(stretch.stereo) / 2 : 0;
        return count;
    }

    LoopbackTimeline timeline_{rate, start};
    SteadyTime now_ = start;
    std::vector<LoopbackStretch> stretches_;
};

std::int64_t framesOf(std::chrono::milliseconds time) { return time.count() * rate / 1000; }

bool isNear(std::int64_t count, std::int64_t wanted) { return std::abs(count - wanted) <= framesOf(20ms); }

} // namespace

class TestLoopbackTimeline : public QObject {
    Q_OBJECT

private slots:
    void passesASteadyStreamOnAsItIs();
    void fillsThePausesBetweenSounds();
    void putsSoundWhereItBelongs();
    void hearsNothingWhereNothingEverCame();
    void hearsNothingLongAfterTheLastSound();
    void waitsForAPacketThatIsLate();
    void losesNothingWhileNobodyLooked();
    void knowsNothingOfATimeThatItMissed();
    void followsAClockThatDrifts();
};

void TestLoopbackTimeline::passesASteadyStreamOnAsItIs()
{
    Capture capture;
    capture.pass(3s, true);
    QCOMPARE(capture.frameCount(), framesOf(3s));
    QCOMPARE(capture.heardFrameCount(), framesOf(3s));
    QVERIFY(capture.stretches().back().end == capture.now());
}

// As a test plays: each digit opens the device, and for a second nothing is open.
void TestLoopbackTimeline::fillsThePausesBetweenSounds()
{
    Capture capture;
    for (int digit = 0; digit < 3; ++digit) {
        capture.pass(1s, true);
        capture.pass(1s, false);
    }
    QVERIFY2(isNear(capture.frameCount(), framesOf(6s - LoopbackTimeline::pauseAfter)),
             qPrintable(QString::number(capture.frameCount())));
    QCOMPARE(capture.heardFrameCount(), capture.frameCount());
    QCOMPARE(capture.soundFrameCount(), framesOf(3s));
}

void TestLoopbackTimeline::putsSoundWhereItBelongs()
{
    Capture capture;
    capture.pass(1s, false);
    capture.pass(500ms, true);
    const auto first = std::find_if(capture.stretches().begin(), capture.stretches().end(), Capture::isSound);
    QVERIFY(first != capture.stretches().end());
    QVERIFY(first->end == start + 1010ms);
    std::int64_t silence = 0;
    for (auto stretch = capture.stretches().begin(); stretch != first; ++stretch)
        silence += std::ssize(stretch->stereo) / 2;
    QVERIFY2(std::abs(silence - framesOf(1s)) <= 1, qPrintable(QString::number(silence)));
    for (std::size_t index = 1; index < capture.stretches().size(); ++index)
        QVERIFY(capture.stretches()[index - 1].end <= capture.stretches()[index].end);
}

// Time goes on, but it is no evidence of silence: the device may have played and the loopback been deaf.
void TestLoopbackTimeline::hearsNothingWhereNothingEverCame()
{
    Capture capture;
    capture.pass(5s, false);
    QVERIFY(isNear(capture.frameCount(), framesOf(5s - LoopbackTimeline::pauseAfter)));
    QCOMPARE(capture.heardFrameCount(), 0);
}

void TestLoopbackTimeline::hearsNothingLongAfterTheLastSound()
{
    Capture capture;
    capture.pass(1s, true);
    capture.pass(10s, false);
    QVERIFY(isNear(capture.heardFrameCount(), framesOf(1s + LoopbackTimeline::longestHeardPause)));
    QVERIFY(isNear(capture.frameCount(), framesOf(11s - LoopbackTimeline::pauseAfter)));
}

void TestLoopbackTimeline::waitsForAPacketThatIsLate()
{
    Capture capture;
    capture.pass(100ms, true);
    capture.pass(50ms, false);
    capture.look(10ms, packetFrameCount * 6);
    QCOMPARE(capture.frameCount(), framesOf(160ms));
    QCOMPARE(capture.soundFrameCount(), framesOf(160ms));
}

void TestLoopbackTimeline::losesNothingWhileNobodyLooked()
{
    Capture capture;
    capture.pass(1s, true);
    capture.look(900ms, packetFrameCount * 90);
    QCOMPARE(capture.soundFrameCount(), framesOf(1900ms));
    QVERIFY(isNear(capture.frameCount(), framesOf(1900ms)));
}

// The system keeps a second: of the two before it nobody knows what they were.
void TestLoopbackTimeline::knowsNothingOfATimeThatItMissed()
{
    Capture capture;
    capture.pass(1s, true);
    capture.look(3s, packetFrameCount * 100);
    QCOMPARE(capture.soundFrameCount(), framesOf(2s));
    QCOMPARE(capture.heardFrameCount(), framesOf(2s));
    QVERIFY(isNear(capture.frameCount(), framesOf(4s)));
}

void TestLoopbackTimeline::followsAClockThatDrifts()
{
    Capture capture;
    for (int look = 0; look < 60'000; ++look) // ten minutes of a device that is 0.2 % slow
        capture.look(10ms, packetFrameCount - (look % 2 == 0 ? 1 : 0));
    QVERIFY(capture.frameCount() - capture.soundFrameCount() <= 1); // before the first packet
    QVERIFY(capture.stretches().back().end == capture.now());
}

QTEST_GUILESS_MAIN(TestLoopbackTimeline)
#include "tst_loopback_timeline.moc"
