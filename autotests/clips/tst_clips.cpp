// SPDX-License-Identifier: Apache-2.0
#include "host/measure/matched_filter.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QFile>
#include <QObject>
#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <utility>
#include <vector>

using measure::DigitClips;
using measure::MatchedFilter;
using measure::MonoSound;
using measure::Recognition;

namespace {

constexpr auto languages = {"pt_BR", "en_US", "es_ES", "fr_FR", "it_IT", "de_DE", "nl_NL", "zh_CN", "ja_JP"};
constexpr std::uint32_t rate = 48000;
constexpr std::size_t padFrameCount = rate / 10;
/// What the unattended microphone run speaks.
const QString sentenceName = QStringLiteral("operator/sentence_en_US.wav");

QString clipsFolder() { return QStringLiteral(AUDIO_CLIPS_DIR); }

QString clipName(const char *language, int digit)
{
    return QStringLiteral("%1/%2_%1.wav").arg(QString::fromLatin1(language)).arg(digit);
}

QByteArray contentOf(const QString &name)
{
    QFile file(clipsFolder() + QLatin1Char('/') + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

DigitClips clipsOf(const char *language)
{
    const std::filesystem::path folder(clipsFolder().toStdU16String());
    return measure::readDigitClips(folder, language).value_or(DigitClips{});
}

double energyOf(std::span<const float> samples)
{
    double energy = 0;
    for (const float sample : samples)
        energy += double{sample} * double{sample};
    return energy;
}

double decibels(double power) { return 10 * std::log10(power); }

std::size_t speechFrameCount(const MonoSound &clip) { return clip.samples.size() - 2 * padFrameCount; }

/// A second-order filter in direct form I.
std::vector<float> filtered(std::span<const float> samples, const std::array<double, 3> &b, const std::array<double, 2> &a)
{
    std::vector<float> result;
    double x1 = 0, x2 = 0, y1 = 0, y2 = 0;
    for (const float sample : samples) {
        const double y = b[0] * double{sample} + b[1] * x1 + b[2] * x2 - a[0] * y1 - a[1] * y2;
        x2 = std::exchange(x1, double{sample});
        y2 = std::exchange(y1, y);
        result.push_back(static_cast<float>(y));
    }
    return result;
}

/// K-weighted level of the speech in dB, after ITU-R BS.1770 without gating; the coefficients are those for 48 kHz.
double loudness(const MonoSound &clip)
{
    const auto shelved =
        filtered(clip.samples, {1.53512485958697, -2.69169618940638, 1.19839281085285}, {-1.69065929318241, 0.73248077421585});
    const auto weighted = filtered(shelved, {1, -2, 1}, {-1.99004745483398, 0.99007225036621});
    return decibels(energyOf(weighted) / static_cast<double>(speechFrameCount(clip)));
}

/// The clip after a second of silence and followed by another.
MonoSound loopback(const MonoSound &clip, std::size_t delayFrames)
{
    MonoSound capture{.sampleRate = rate, .samples = std::vector<float>(delayFrames)};
    capture.samples.insert(capture.samples.end(), clip.samples.begin(), clip.samples.end());
    capture.samples.resize(capture.samples.size() + rate);
    return capture;
}

/// White noise whose part below 4 kHz, all that the matched filter hears, is 4 dB above the speech. Of the same values
/// with every standard library: the sum of twelve uniform values is near enough to normal.
void addNoise(MonoSound &capture, const MonoSound &clip, unsigned seed)
{
    const double speechRms = std::sqrt(energyOf(clip.samples) / static_cast<double>(speechFrameCount(clip)));
    const double rms = speechRms * std::pow(10, 4 / 20.0) * std::sqrt(6);
    std::mt19937 engine(seed);
    for (float &sample : capture.samples) {
        double sum = -6;
        for (int term = 0; term < 12; ++term)
            sum += static_cast<double>(engine()) / 4294967296.0;
        sample += static_cast<float>(rms * sum);
    }
}

} // namespace

class TestClips : public QObject {
    Q_OBJECT

private slots:
    void folderHoldsTheClipsOnly();
    void manifestMatches();
    void everyClipIsStereoPcm();
    void everyClipFitsTheSecondThatIsHeard();
    void everyClipBeginsAndEndsSilent();
    void everyClipStaysBelowTheCeiling();
    void allClipsAreEquallyLoud();
    void digitsOfALanguageDiffer_data() { addLanguages(); }
    void digitsOfALanguageDiffer();
    void everyDigitIsRecognisedInLoopback_data() { addLanguages(); }
    void everyDigitIsRecognisedInLoopback();
    void everyDigitIsRecognisedUnderNoise();
    void theSentenceIsMadeLikeTheDigits();

private:
    static void addLanguages()
    {
        QTest::addColumn<QByteArray>("language");
        for (const char *language : languages)
            QTest::newRow(language) << QByteArray(language);
    }
};

void TestClips::folderHoldsTheClipsOnly()
{
    QStringList expected{QStringLiteral(".stamp"), QStringLiteral("manifest.sha256")};
    for (const char *language : languages) {
        for (int digit = 0; digit < 10; ++digit)
            expected << clipName(language, digit);
    }
    expected << sentenceName;
    QStringList found;
    QDirIterator files(clipsFolder(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext())
        found << QDir(clipsFolder()).relativeFilePath(files.next());
    expected.sort();
    found.sort();
    QCOMPARE(found, expected);
}

void TestClips::manifestMatches()
{
    QByteArrayList names;
    for (const QByteArray &line : contentOf(QStringLiteral("manifest.sha256")).trimmed().split('\n')) {
        names << line.mid(66);
        const QByteArray clip = contentOf(QString::fromUtf8(names.last()));
        QCOMPARE(QCryptographicHash::hash(clip, QCryptographicHash::Sha256).toHex(), line.left(64));
    }
    QCOMPARE(names.size(), 91);
    QVERIFY(std::is_sorted(names.cbegin(), names.cend()));
}

void TestClips::everyClipIsStereoPcm()
{
    // PCM, 2 channels, 48000 frames and 192000 bytes a second, 4 bytes a frame, 16 bits a sample; then nothing but data.
    const QByteArray header("666d7420"
                            "10000000"
                            "0100"
                            "0200"
                            "80bb0000"
                            "00ee0200"
                            "0400"
                            "1000"
                            "64617461");
    for (const char *language : languages) {
        for (int digit = 0; digit < 10; ++digit)
            QCOMPARE(contentOf(clipName(language, digit)).mid(12, 28).toHex(), header);
    }
}

void TestClips::everyClipFitsTheSecondThatIsHeard()
{
    double shortest = 1;
    double longest = 0;
    for (const char *language : languages) {
        for (const MonoSound &clip : clipsOf(language)) {
            const double seconds = static_cast<double>(clip.samples.size()) / rate;
            shortest = std::min(shortest, seconds);
            longest = std::max(longest, seconds);
        }
    }
    qInfo("clips last %.3f to %.3f s", shortest, longest);
    QVERIFY(shortest >= 0.40);
    QVERIFY(longest <= 0.95);
}

void TestClips::everyClipBeginsAndEndsSilent()
{
    const auto isSilent = [](std::span<const float> samples) {
        return std::all_of(samples.begin(), samples.end(), [](float sample) { return sample == 0.0F; });
    };
    for (const char *language : languages) {
        for (const MonoSound &clip : clipsOf(language)) {
            QVERIFY(clip.samples.size() > 2 * padFrameCount);
            QVERIFY(isSilent(std::span(clip.samples).first(padFrameCount)));
            QVERIFY(isSilent(std::span(clip.samples).last(padFrameCount)));
            // The speech itself follows soon: the silence that the voice puts around it is gone.
            const auto begin = std::span(clip.samples).subspan(padFrameCount, rate / 20);
            const auto end = std::span(clip.samples).last(padFrameCount + rate / 20).first(rate / 20);
            QVERIFY(energyOf(begin) > 1e-5 * energyOf(clip.samples));
            QVERIFY(energyOf(end) > 1e-5 * energyOf(clip.samples));
        }
    }
}

void TestClips::everyClipStaysBelowTheCeiling()
{
    float peak = 0;
    double offset = 0;
    for (const char *language : languages) {
        for (const MonoSound &clip : clipsOf(language)) {
            double sum = 0;
            for (const float sample : clip.samples) {
                peak = std::max(peak, std::abs(sample));
                sum += double{sample};
            }
            offset = std::max(offset, std::abs(sum) / static_cast<double>(clip.samples.size()));
        }
    }
    qInfo("highest peak %.2f dBFS, largest offset %.6f", 20 * std::log10(double{peak}), offset);
    QVERIFY(peak > 0.1F);
    QVERIFY(20 * std::log10(double{peak}) <= -1.0);
    QVERIFY(offset < 0.001);
}

void TestClips::allClipsAreEquallyLoud()
{
    std::vector<double> levels;
    for (const char *language : languages) {
        for (const MonoSound &clip : clipsOf(language))
            levels.push_back(loudness(clip));
    }
    const auto [quietest, loudest] = std::minmax_element(levels.begin(), levels.end());
    qInfo("loudness %.2f to %.2f dB, spread %.3f dB", *quietest, *loudest, *loudest - *quietest);
    // A spread of 1 dB is about what an ear notices; the clips are made within 0.2 dB.
    QVERIFY(*loudest - *quietest < 0.2);
    QVERIFY(std::abs(*loudest + 19.5) < 0.2);
}

void TestClips::digitsOfALanguageDiffer()
{
    QFETCH(const QByteArray, language);
    const DigitClips clips = clipsOf(language.constData());
    const MatchedFilter filter(clips);
    double worst = 0;
    std::pair<std::size_t, std::size_t> pair;
    for (std::size_t spoken = 0; spoken < 10; ++spoken) {
        const Recognition heard = filter.recognise(clips[spoken]);
        QString row;
        for (std::size_t other = 0; other < 10; ++other) {
            row += QString::asprintf(" %.2f", heard.scores[other]);
            if (other != spoken && heard.scores[other] > worst) {
                worst = heard.scores[other];
                pair = {spoken, other};
            }
        }
        qInfo("%s %zu is like 0 to 9:%s", language.constData(), spoken, qPrintable(row));
    }
    qInfo("%s: most alike are %zu and %zu, %.3f", language.constData(), pair.first, pair.second, worst);
    QVERIFY(worst > 0.1);
    QVERIFY(worst < 0.80);
}

void TestClips::everyDigitIsRecognisedInLoopback()
{
    QFETCH(const QByteArray, language);
    const DigitClips clips = clipsOf(language.constData());
    const MatchedFilter filter(clips);
    for (std::size_t digit = 0; digit < 10; ++digit) {
        const std::size_t delayFrames = rate + 7 * digit;
        const Recognition heard = filter.recognise(loopback(clips[digit], delayFrames));
        QCOMPARE(heard.digit, std::optional(static_cast<int>(digit)));
        QCOMPARE(heard.lagFrames, static_cast<std::int64_t>(delayFrames));
        QVERIFY(heard.accepted && heard.score > 0.99);
    }
}

void TestClips::everyDigitIsRecognisedUnderNoise()
{
    int right = 0;
    int accepted = 0;
    double lowestMargin = 1;
    unsigned seed = 0;
    for (const char *language : languages) {
        const DigitClips clips = clipsOf(language);
        const MatchedFilter filter(clips);
        for (int digit = 0; digit < 10; ++digit) {
            const MonoSound &clip = clips[static_cast<std::size_t>(digit)];
            MonoSound capture = loopback(clip, rate);
            addNoise(capture, clip, ++seed);
            const Recognition heard = filter.recognise(capture);
            right += heard.digit == digit ? 1 : 0;
            accepted += heard.digit == digit && heard.accepted ? 1 : 0;
            lowestMargin = std::min(lowestMargin, heard.margin);
        }
    }
    qInfo("%d of 90 right, %d accepted, lowest margin %.3f", right, accepted, lowestMargin);
    QCOMPARE(right, 90);
    QVERIFY(accepted >= 80);
}

void TestClips::theSentenceIsMadeLikeTheDigits()
{
    const auto path = std::filesystem::path((clipsFolder() + QLatin1Char('/') + sentenceName).toStdU16String());
    const MonoSound sentence = measure::readWavFile(path).value_or(MonoSound{});
    const double seconds = static_cast<double>(sentence.samples.size()) / rate;
    qInfo("the sentence lasts %.3f s, loudness %.2f dB", seconds, loudness(sentence));
    QCOMPARE(contentOf(sentenceName).mid(12, 28).toHex(), contentOf(clipName("en_US", 0)).mid(12, 28).toHex());
    QVERIFY(seconds >= 2 && seconds <= 4);
    QVERIFY(std::abs(loudness(sentence) + 19.5) < 0.2);
    for (const float sample : sentence.samples)
        QVERIFY(20 * std::log10(std::abs(double{sample})) <= -1.0);
}

QTEST_GUILESS_MAIN(TestClips)
#include "tst_clips.moc"
