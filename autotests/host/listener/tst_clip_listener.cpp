// SPDX-License-Identifier: Apache-2.0
#include "host/listener/clip_listener.h"

#include "autotests/host/listener/digit_streams.h"
#include "host/listener/signal_meter.h"

#include <QObject>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <numbers>
#include <random>

using namespace digit_streams;
using namespace std::chrono_literals;
using host::HeardClip;
using host::MeterReading;

namespace {

const measure::MonoSound &sentence()
{
    static const measure::MonoSound clip =
        measure::readWavFile(std::filesystem::path(AUDIO_CLIPS_DIR) / "operator" / "sentence_en_US.wav")
            .value_or(measure::MonoSound{});
    return clip;
}

Stream spokenSentence(double lead = 1.0, double tail = 1.5)
{
    Stream stream = silence(lead);
    append(stream, sentence().samples);
    append(stream, silence(tail));
    return stream;
}

/// Feeds the stream as both channels in blocks of 1024 frames, the first of which begins at 0.
std::vector<HeardClip> hearClips(const Stream &stream)
{
    std::vector<HeardClip> heard;
    host::ClipListener listener(sentence(), [&heard](const HeardClip &clip) { heard.push_back(clip); });
    constexpr std::size_t blockFrameCount = host::SoundBlock::maxFrameCount;
    for (std::size_t first = 0; first < stream.size(); first += blockFrameCount) {
        const std::size_t end = std::min(first + blockFrameCount, stream.size());
        std::vector<float> block;
        for (std::size_t frame = first; frame < end; ++frame)
            block.insert(block.end(), 2, stream[frame]);
        listener.feed(block, host::SteadyTime(std::chrono::microseconds(end * 1'000'000 / host::captureRate)));
    }
    listener.finish();
    return heard;
}

/// The found place of the highest score; an empty one when the clip was not found.
HeardClip found(const std::vector<HeardClip> &heard)
{
    HeardClip best;
    for (const HeardClip &clip : heard) {
        if (clip.isFound && clip.score > best.score)
            best = clip;
    }
    return best;
}

double highestScore(const std::vector<HeardClip> &heard)
{
    double highest = 0;
    for (const HeardClip &clip : heard)
        highest = std::max(highest, clip.score);
    return highest;
}

/// Nothing below 500 Hz, and echoes of a small room: each 60 dB down after a third of a second.
Stream throughASmallRoom(const Stream &stream)
{
    Stream thin(stream.size());
    const float pole = std::exp(-2 * std::numbers::pi_v<float> * 500 / host::captureRate);
    for (std::size_t frame = 1; frame < stream.size(); ++frame)
        thin[frame] = pole * (thin[frame - 1] + stream[frame] - stream[frame - 1]);
    Stream wet = thin;
    std::mt19937 engine(7);
    for (int echo = 0; echo < 60; ++echo) {
        const auto delay = static_cast<std::size_t>(200 + engine() % 12'000);
        const float gain = (engine() % 2 == 0 ? 0.25F : -0.25F) * std::pow(10.0F, -3.0F * static_cast<float>(delay) / 16'000);
        for (std::size_t frame = delay; frame < wet.size(); ++frame)
            wet[frame] += gain * thin[frame - delay];
    }
    return wet;
}

Stream noisy()
{
    Stream stream = spokenSentence();
    addNoise(stream, clipsOf("en_US"), 4);
    return stream;
}

/// A sound server that lost 60 ms in the middle of the sentence.
Stream withALoss()
{
    Stream stream = spokenSentence();
    const auto middle = stream.begin() + static_cast<std::ptrdiff_t>(host::captureRate + sentence().samples.size() / 2);
    stream.erase(middle, middle + host::captureRate * 6 / 100);
    return stream;
}

Stream scaled(Stream stream, float gain)
{
    for (float &sample : stream)
        sample = std::clamp(sample * gain, -1.0F, 1.0F);
    return stream;
}

Stream backwards()
{
    Stream stream = spokenSentence();
    std::reverse(stream.begin(), stream.end());
    return stream;
}

Stream justNoise(double decibels)
{
    Stream stream = silence(12);
    addNoise(stream, clipsOf("en_US"), decibels);
    return stream;
}

} // namespace

class TestClipListener : public QObject {
    Q_OBJECT

private slots:
    void findsTheSentence_data();
    void findsTheSentence();
    void findsNothingElse_data();
    void findsNothingElse();
    void tellsWhereItBegan();
    void tellsLevelAndClipping();
    void saysNothingInSilence();
    void doesNotFindAnUnfinishedSentence();
    void meterTellsTenTimesASecond();
    void meterTellsPeakAndChannels();
    void meterTellsTheWave();
    void meterTellsMomentsInTheMiddleOfABlock();
};

void TestClipListener::findsTheSentence_data()
{
    QTest::addColumn<Stream>("stream");
    QTest::newRow("clean loopback") << spokenSentence();
    QTest::newRow("early") << spokenSentence(0.05);
    QTest::newRow("late") << spokenSentence(11.3);
    QTest::newRow("a tenth of the volume") << scaled(spokenSentence(), 0.1F);
    QTest::newRow("upside down") << scaled(spokenSentence(), -1);
    QTest::newRow("driven into the limits") << scaled(spokenSentence(), 8);
    QTest::newRow("small loudspeaker and room") << throughASmallRoom(spokenSentence());
    QTest::newRow("noise 4 dB above the speech") << noisy();
    QTest::newRow("60 ms lost") << withALoss();
}

void TestClipListener::findsTheSentence()
{
    QFETCH(const Stream, stream);
    const std::vector<HeardClip> heard = hearClips(stream);
    qInfo("score %.3f", highestScore(heard));
    QVERIFY(found(heard).isFound);
    QVERIFY(found(heard).score > host::ClipSearch::minScore);
}

void TestClipListener::findsNothingElse_data()
{
    QTest::addColumn<Stream>("stream");
    for (const char *language : languages)
        QTest::addRow("digits of %s", language) << spoken(clipsOf(language), {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, 0.1);
    QTest::newRow("backwards") << backwards();
    QTest::newRow("white noise") << justNoise(0);
    QTest::newRow("loud white noise") << justNoise(12);
}

void TestClipListener::findsNothingElse()
{
    QFETCH(const Stream, stream);
    const std::vector<HeardClip> heard = hearClips(stream);
    qInfo("score %.3f", highestScore(heard));
    QVERIFY(!heard.empty()); // it was looked at
    QVERIFY(!found(heard).isFound);
    QVERIFY(highestScore(heard) < host::ClipSearch::minScore * 0.6);
}

void TestClipListener::tellsWhereItBegan()
{
    const HeardClip clip = found(hearClips(spokenSentence(2.345)));
    const auto begin = std::chrono::duration_cast<std::chrono::milliseconds>(clip.start.time_since_epoch());
    QVERIFY2(std::abs((begin - 2345ms).count()) <= 5, qPrintable(QString::number(begin.count())));
    QCOMPARE(clip.duration.count(), std::ssize(sentence().samples) * 1000 / host::captureRate);
}

void TestClipListener::tellsLevelAndClipping()
{
    const HeardClip full = found(hearClips(spokenSentence()));
    const HeardClip tenth = found(hearClips(scaled(spokenSentence(), 0.1F)));
    QVERIFY2(std::abs(full.levelDbfs - tenth.levelDbfs - 20) < 0.1, qPrintable(QString::number(tenth.levelDbfs)));
    QVERIFY(full.levelDbfs > -30 && full.levelDbfs < -10);
    QVERIFY(!full.isClipped);
    QVERIFY(found(hearClips(scaled(spokenSentence(), 8))).isClipped);
}

void TestClipListener::saysNothingInSilence()
{
    QVERIFY(hearClips(silence(10)).empty());
    QVERIFY(hearClips(scaled(spokenSentence(), 0.002F)).empty()); // below -50 dBFS
}

// Two thirds of the sentence are not the sentence, however much alike they are.
void TestClipListener::doesNotFindAnUnfinishedSentence()
{
    Stream stream = spokenSentence(0.5, 0);
    stream.resize(stream.size() - sentence().samples.size() / 3);
    QVERIFY(!found(hearClips(stream)).isFound);
}

void TestClipListener::meterTellsTenTimesASecond()
{
    int count = 0;
    host::SignalMeter meter([&count](const MeterReading &) { ++count; });
    const std::vector<float> block(2 * 1024, 0.1F);
    std::size_t frameCount = 0;
    for (; frameCount < 3 * host::captureRate; frameCount += 1024)
        meter.feed(block, {});
    QCOMPARE(count, static_cast<int>(frameCount * 10 / host::captureRate));
}

void TestClipListener::meterTellsPeakAndChannels()
{
    std::vector<MeterReading> readings;
    host::SignalMeter meter([&readings](const MeterReading &reading) { readings.push_back(reading); });
    std::vector<float> frames;
    for (std::size_t frame = 0; frame < host::captureRate / 10; ++frame) {
        frames.push_back(frame % 2 == 0 ? 0.5F : -0.5F);
        frames.push_back(0);
    }
    meter.feed(frames, {});
    QCOMPARE(readings.size(), std::size_t{1});
    const MeterReading &reading = readings.front();
    QVERIFY(std::abs(reading.peakDbfs - -6.02) < 0.01);
    QVERIFY(std::abs(reading.rmsDbfs - -9.03) < 0.01); // of both channels
    QVERIFY(std::abs(reading.channelDbfs[0] - -6.02) < 0.01);
    QCOMPARE(reading.channelDbfs[1], host::lowestDbfs);
    QVERIFY(std::abs(reading.differenceDbfs - -6.02) < 0.01);
}

void TestClipListener::meterTellsTheWave()
{
    std::vector<MeterReading> readings;
    host::SignalMeter meter([&readings](const MeterReading &reading) { readings.push_back(reading); });
    std::vector<float> frames;
    for (std::size_t frame = 0; frame < host::captureRate / 10; ++frame) {
        const float sample = static_cast<float>(frame / 960) * 0.1F;
        frames.push_back(sample);
        frames.push_back(-sample / 2);
    }
    meter.feed(frames, {});
    for (std::size_t part = 0; part < MeterReading::waveCount; ++part) {
        QCOMPARE(readings.at(0).wave[part].highest, static_cast<float>(part) * 0.1F);
        QCOMPARE(readings.at(0).wave[part].lowest, static_cast<float>(part) * -0.05F);
    }
}

void TestClipListener::meterTellsMomentsInTheMiddleOfABlock()
{
    std::vector<MeterReading> readings;
    host::SignalMeter meter([&readings](const MeterReading &reading) { readings.push_back(reading); });
    meter.feed(std::vector<float>(2 * 7200, 0.0F), host::SteadyTime(1s)); // 150 ms
    QCOMPARE(readings.size(), std::size_t{1});
    QCOMPARE(readings.front().end, host::SteadyTime(950ms));
}

QTEST_GUILESS_MAIN(TestClipListener)
#include "tst_clip_listener.moc"
