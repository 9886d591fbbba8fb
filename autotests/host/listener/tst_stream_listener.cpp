// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/listener/digit_streams.h"

#include <QDebug>
#include <QObject>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <numbers>

using namespace digit_streams;
using namespace std::chrono_literals;
using host::HeardSound;

namespace {

Stream tone(double seconds, float amplitude)
{
    Stream stream = silence(seconds);
    for (std::size_t frame = 0; frame < stream.size(); ++frame) {
        const double turns = 311.0 * static_cast<double>(frame) / host::captureRate;
        stream[frame] = amplitude * static_cast<float>(std::sin(2 * std::numbers::pi * turns));
    }
    return stream;
}

std::chrono::milliseconds millisecondsOf(host::SteadyTime time)
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(time.time_since_epoch());
}

} // namespace

class TestStreamListener : public QObject {
    Q_OBJECT

private slots:
    void hearsTheTenDigitsOfALanguage_data();
    void hearsTheTenDigitsOfALanguage();
    void hearsDigitsThatWereChanged_data();
    void hearsDigitsThatWereChanged();
    void hearsDigitsInNoise_data();
    void hearsDigitsInNoise();
    void hearsOneChannelAlone();
    void tellsWhereADigitBegan();
    void tellsTheLevel();
    void tellsWhatIsClipped();
    void tellsASoundThatIsNoDigit();
    void tellsAnEndlessSoundInParts();
    void takesSoundsInTheirOrder();
    void hearsNothingBelowTheSilenceLevel();
    void hearsNoDigitInSteadyNoise();
    void hearsNothingInADirectCurrent();
    void hearsAnUnfinishedDigitAsASound();
    void keepsHearingForMinutes();
};

void TestStreamListener::hearsTheTenDigitsOfALanguage_data()
{
    QTest::addColumn<QByteArray>("language");
    for (const char *language : languages)
        QTest::addRow("%s", language) << QByteArray(language);
}

void TestStreamListener::hearsTheTenDigitsOfALanguage()
{
    QFETCH(const QByteArray, language);
    const measure::DigitClips clips = clipsOf(language.constData());
    const std::vector<int> digits{3, 1, 4, 5, 9, 2, 6, 8, 7, 0};
    QCOMPARE(digitsOf(hear(clips, spoken(clips, digits))), digits);
}

void TestStreamListener::hearsDigitsThatWereChanged_data()
{
    QTest::addColumn<float>("gain");
    QTest::addColumn<float>("offset");
    QTest::addColumn<double>("gap");
    QTest::newRow("half volume") << 0.5F << 0.0F << 1.0;
    QTest::newRow("nearly silent") << 0.03F << 0.0F << 1.0;
    QTest::newRow("driven into the limits") << 12.0F << 0.0F << 1.0;
    QTest::newRow("direct current") << 0.5F << 0.3F << 1.0;
    QTest::newRow("upside down") << -1.0F << 0.0F << 1.0;
    QTest::newRow("as far apart as the dialog plays them") << 1.0F << 0.0F << 1.3;
    QTest::newRow("far apart") << 1.0F << 0.0F << 3.1;
}

void TestStreamListener::hearsDigitsThatWereChanged()
{
    QFETCH(const float, gain);
    QFETCH(const float, offset);
    QFETCH(const double, gap);
    const measure::DigitClips clips = clipsOf("de_DE");
    const std::vector<int> digits{9, 0, 7};
    Stream stream = spoken(clips, digits, gap);
    for (float &sample : stream)
        sample = std::clamp(sample * gain + offset, -1.0F, 1.0F);
    QCOMPARE(digitsOf(hear(clips, stream)), digits);
}

void TestStreamListener::hearsDigitsInNoise_data()
{
    QTest::addColumn<QByteArray>("language");
    for (const char *language : {"en_US", "zh_CN", "it_IT"})
        QTest::addRow("%s", language) << QByteArray(language);
}

// Noise 4 dB above the speech: no level tells where a digit begins.
void TestStreamListener::hearsDigitsInNoise()
{
    QFETCH(const QByteArray, language);
    const measure::DigitClips clips = clipsOf(language.constData());
    const std::vector<int> digits{8, 2, 5};
    Stream stream = spoken(clips, digits);
    addNoise(stream, clips, 4);
    std::vector<int> heard = digitsOf(hear(clips, stream));
    std::erase(heard, -1); // the noise itself is a sound, too
    QCOMPARE(heard, digits);
}

void TestStreamListener::hearsOneChannelAlone()
{
    const measure::DigitClips clips = clipsOf("en_US");
    const Stream stream = spoken(clips, {4});
    std::vector<HeardSound> sounds;
    host::StreamListener listener(clips, [&sounds](const HeardSound &sound) { sounds.push_back(sound); });
    for (const float sample : stream)
        listener.feed(std::array{sample, 0.0F}, {});
    listener.finish();
    QCOMPARE(digitsOf(sounds), std::vector<int>{4});
}

void TestStreamListener::tellsWhereADigitBegan()
{
    const measure::DigitClips clips = clipsOf("fr_FR");
    const std::vector<HeardSound> sounds = hear(clips, spoken(clips, {6}, 1.0, 2.345), host::SteadyTime(100s));
    QCOMPARE(sounds.size(), std::size_t{1});
    const auto begin = millisecondsOf(sounds[0].start);
    QVERIFY2(begin >= 102'340ms && begin <= 102'350ms, qPrintable(QString::number(begin.count())));
    const auto expected = std::ssize(clips[6].samples) * 1000 / host::captureRate;
    QCOMPARE(sounds[0].duration.count(), expected);
    QVERIFY(sounds[0].score > 0.9 && sounds[0].margin > 0.3);
}

void TestStreamListener::tellsTheLevel()
{
    const measure::DigitClips clips = clipsOf("fr_FR");
    Stream stream = spoken(clips, {6});
    const double full = hear(clips, stream).at(0).levelDbfs;
    for (float &sample : stream)
        sample *= 0.1F;
    const double tenth = hear(clips, stream).at(0).levelDbfs;
    QVERIFY2(std::abs(full - tenth - 20) < 0.1, qPrintable(QString::number(full - tenth)));
    QVERIFY(full > -30 && full < -6);
}

void TestStreamListener::tellsWhatIsClipped()
{
    const measure::DigitClips clips = clipsOf("en_US");
    Stream loud = spoken(clips, {1});
    for (float &sample : loud)
        sample = std::clamp(sample * 6, -1.0F, 1.0F);
    append(loud, spoken(clips, {2}));
    const std::vector<HeardSound> sounds = hear(clips, loud);
    QCOMPARE(digitsOf(sounds), (std::vector<int>{1, 2}));
    QVERIFY(sounds[0].isClipped);
    QVERIFY(!sounds[1].isClipped);
}

void TestStreamListener::tellsASoundThatIsNoDigit()
{
    const measure::DigitClips clips = clipsOf("en_US");
    Stream stream = silence(1);
    append(stream, tone(0.6, 0.1F));
    append(stream, silence(2));
    const std::vector<HeardSound> sounds = hear(clips, stream, host::SteadyTime(10s));
    QCOMPARE(digitsOf(sounds), std::vector<int>{-1});
    QVERIFY(std::abs((millisecondsOf(sounds[0].start) - 11'000ms).count()) <= 50);
    QVERIFY(std::abs((sounds[0].duration - 600ms).count()) <= 100);
    QVERIFY(std::abs(sounds[0].levelDbfs - -23.0) < 1);
    QCOMPARE(sounds[0].score, 0.0);
}

void TestStreamListener::tellsAnEndlessSoundInParts()
{
    const measure::DigitClips clips = clipsOf("en_US");
    const std::vector<HeardSound> sounds = hear(clips, tone(7, 0.1F));
    QCOMPARE(digitsOf(sounds), (std::vector<int>{-1, -1, -1, -1}));
    QVERIFY(std::abs((sounds[1].start - sounds[0].start - 2s) / 1ms) <= 50);
}

void TestStreamListener::takesSoundsInTheirOrder()
{
    const measure::DigitClips clips = clipsOf("nl_NL");
    Stream stream = spoken(clips, {1});
    append(stream, tone(0.4, 0.2F));
    append(stream, spoken(clips, {2, 3}, 1.0, 1.0));
    QCOMPARE(digitsOf(hear(clips, stream)), (std::vector<int>{1, -1, 2, 3}));
}

void TestStreamListener::hearsNothingBelowTheSilenceLevel()
{
    const measure::DigitClips clips = clipsOf("en_US");
    Stream stream = spoken(clips, {1, 2, 3});
    for (float &sample : stream)
        sample *= 0.003F; // -50 dB
    QCOMPARE(digitsOf(hear(clips, stream)), std::vector<int>{});
}

void TestStreamListener::hearsNoDigitInSteadyNoise()
{
    const measure::DigitClips clips = clipsOf("ja_JP");
    Stream stream = silence(10);
    addNoise(stream, clips, 0);
    const std::vector<int> heard = digitsOf(hear(clips, stream));
    QCOMPARE(heard, std::vector<int>(5, -1));
}

void TestStreamListener::hearsNothingInADirectCurrent()
{
    Stream stream(host::captureRate * 3, 0.4F);
    stream.resize(host::captureRate * 6, -0.2F); // and where it changes, no more than a click
    QCOMPARE(digitsOf(hear(clipsOf("en_US"), stream)), std::vector<int>{});
}

void TestStreamListener::hearsAnUnfinishedDigitAsASound()
{
    const measure::DigitClips clips = clipsOf("en_US");
    Stream stream = spoken(clips, {7}, 0);
    stream.resize(stream.size() - clips[7].samples.size() / 2);
    QCOMPARE(digitsOf(hear(clips, stream)), std::vector<int>{-1});
}

// Longer than what is kept of the capture.
void TestStreamListener::keepsHearingForMinutes()
{
    const measure::DigitClips clips = clipsOf("es_ES");
    Stream stream = silence(125);
    append(stream, spoken(clips, {5}));
    append(stream, silence(15));
    const std::vector<HeardSound> sounds = hear(clips, stream);
    QCOMPARE(digitsOf(sounds), std::vector<int>{5});
    QVERIFY(std::abs((millisecondsOf(sounds[0].start) - 125'700ms).count()) <= 5);
}

QTEST_GUILESS_MAIN(TestStreamListener)
#include "tst_stream_listener.moc"
