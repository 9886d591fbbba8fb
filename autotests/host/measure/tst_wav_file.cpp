// SPDX-License-Identifier: Apache-2.0
#include "host/measure/wav_file.h"

#include <QByteArray>
#include <QFile>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

using measure::MonoSound;

namespace {

std::span<const std::byte> bytesOf(const QByteArray &content)
{
    return std::as_bytes(std::span(content.constData(), static_cast<std::size_t>(content.size())));
}

QByteArray number(std::uint32_t value, int byteCount)
{
    QByteArray bytes;
    for (int index = 0; index < byteCount; ++index)
        bytes.append(static_cast<char>(value >> (8 * index) & 0xFF));
    return bytes;
}

QByteArray chunk(const QByteArray &tag, const QByteArray &content)
{
    QByteArray bytes = tag + number(static_cast<std::uint32_t>(content.size()), 4) + content;
    return content.size() % 2 == 0 ? bytes : bytes + '\0';
}

QByteArray format(std::uint32_t code, std::uint32_t channels, std::uint32_t rate, std::uint32_t bits)
{
    const std::uint32_t blockAlign = channels * bits / 8;
    return number(code, 2) + number(channels, 2) + number(rate, 4) + number(rate * blockAlign, 4) + number(blockAlign, 2) +
           number(bits, 2);
}

QByteArray extensibleFormat(std::uint32_t subFormat)
{
    return format(0xFFFE, 2, 48000, 16) + number(22, 2) + number(16, 2) + number(3, 4) + number(subFormat, 2) +
           QByteArray::fromHex("000000001000800000aa00389b71");
}

QByteArray wav(const QByteArray &chunks)
{
    return "RIFF" + number(static_cast<std::uint32_t>(chunks.size() + 4), 4) + "WAVE" + chunks;
}

/// Two stereo frames: (16384, 0) and (-32768, -32768).
QByteArray frames() { return QByteArray::fromHex("0040000000800080"); }

QByteArray goodWav() { return wav(chunk("fmt ", format(1, 2, 48000, 16)) + chunk("data", frames())); }

} // namespace

class TestWavFile : public QObject {
    Q_OBJECT

private slots:
    void mixesChannelsToTheirMean();
    void readsEveryAcceptedLayout_data();
    void readsEveryAcceptedLayout();
    void refusesWhatItCannotRead_data();
    void refusesWhatItCannotRead();
    void refusesEveryTruncation();
    void survivesEveryFlippedByte();
    void ignoresAnIncompleteLastFrame();
    void refusesImpossibleRawFormats();
    void readsFilesFromDisk();
    void refusesMissingFilesAndFolders();
};

void TestWavFile::mixesChannelsToTheirMean()
{
    const auto sound = measure::mixFrames(bytesOf(frames()), 44100, 2);
    QVERIFY(sound);
    QCOMPARE(sound->sampleRate, 44100U);
    QCOMPARE(sound->samples, (std::vector<float>{0.25F, -1.0F}));
}

void TestWavFile::readsEveryAcceptedLayout_data()
{
    const QByteArray fmt = chunk("fmt ", format(1, 2, 48000, 16));
    const QByteArray data = chunk("data", frames());
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("plain") << goodWav();
    QTest::newRow("list chunk of odd length first") << wav(chunk("LIST", "odd") + fmt + data);
    QTest::newRow("chunk after the data") << wav(fmt + data + chunk("LIST", "INFO"));
    QTest::newRow("extensible header") << wav(chunk("fmt ", extensibleFormat(1)) + data);
    QTest::newRow("long format chunk") << wav(chunk("fmt ", format(1, 2, 48000, 16) + QByteArray(24, '\0')) + data);
    QTest::newRow("wrong outer size") << QByteArray(wav(fmt + data)).replace(4, 4, QByteArray(4, '\xFF'));
}

void TestWavFile::readsEveryAcceptedLayout()
{
    QFETCH(const QByteArray, file);
    const auto sound = measure::parseWav(bytesOf(file));
    QVERIFY(sound);
    QCOMPARE(sound->sampleRate, 48000U);
    QCOMPARE(sound->samples, (std::vector<float>{0.25F, -1.0F}));
}

void TestWavFile::refusesWhatItCannotRead_data()
{
    const QByteArray fmt = chunk("fmt ", format(1, 2, 48000, 16));
    const QByteArray data = chunk("data", frames());
    const auto withFormat = [&data](const QByteArray &content) { return wav(chunk("fmt ", content) + data); };
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("header only") << wav({});
    QTest::newRow("not RIFF") << QByteArray(goodWav()).replace(0, 4, "RIFX");
    QTest::newRow("not WAVE") << QByteArray(goodWav()).replace(8, 4, "AVI ");
    QTest::newRow("no format") << wav(data);
    QTest::newRow("format after the data") << wav(data + fmt);
    QTest::newRow("no data") << wav(fmt);
    QTest::newRow("short format") << withFormat(format(1, 2, 48000, 16).left(14));
    QTest::newRow("float samples") << withFormat(format(3, 2, 48000, 32));
    QTest::newRow("extensible float") << withFormat(extensibleFormat(3));
    QTest::newRow("extensible cut short") << withFormat(extensibleFormat(1).left(18));
    QTest::newRow("8 bits") << withFormat(format(1, 2, 48000, 8));
    QTest::newRow("24 bits") << withFormat(format(1, 2, 48000, 24));
    QTest::newRow("12 bits in 16") << withFormat(format(1, 2, 48000, 16).replace(14, 2, number(12, 2)));
    QTest::newRow("no channel") << withFormat(format(1, 0, 48000, 16));
    QTest::newRow("65535 channels") << withFormat(format(1, 65535, 48000, 16));
    QTest::newRow("rate 0") << withFormat(format(1, 2, 0, 16));
    QTest::newRow("rate of 4 GHz") << withFormat(format(1, 2, 0xFFFFFFFF, 16));
    QTest::newRow("block align 0") << withFormat(format(1, 2, 48000, 16).replace(12, 2, number(0, 2)));
    QTest::newRow("data of 4 GiB") << wav(fmt + "data" + number(0xFFFFFFFF, 4) + frames());
    QTest::newRow("other chunk of 4 GiB") << wav("LIST" + number(0xFFFFFFF7, 4) + fmt + data);
}

void TestWavFile::refusesWhatItCannotRead()
{
    QFETCH(const QByteArray, file);
    QVERIFY(!measure::parseWav(bytesOf(file)));
}

void TestWavFile::refusesEveryTruncation()
{
    const QByteArray whole = goodWav();
    for (qsizetype byteCount = 0; byteCount < whole.size(); ++byteCount) {
        // A copy of the exact size, so that the address sanitizer sees a read past its end.
        const QByteArray part(whole.constData(), byteCount);
        QVERIFY2(!measure::parseWav(bytesOf(part)), qPrintable(QString::number(byteCount)));
    }
}

void TestWavFile::survivesEveryFlippedByte()
{
    const QByteArray whole = goodWav();
    for (qsizetype index = 0; index < whole.size(); ++index) {
        for (const int flip : {0x01, 0x80, 0xFF}) {
            QByteArray damaged = whole;
            damaged[index] = static_cast<char>(damaged[index] ^ flip);
            const auto sound = measure::parseWav(bytesOf(damaged));
            QVERIFY(!sound || (sound->sampleRate > 0 && sound->samples.size() <= 4));
        }
    }
}

void TestWavFile::ignoresAnIncompleteLastFrame()
{
    const auto sound = measure::mixFrames(bytesOf(frames() + "abc"), 48000, 2);
    QVERIFY(sound);
    QCOMPARE(sound->samples.size(), std::size_t{2});
    QVERIFY(measure::mixFrames({}, 48000, 2)->samples.empty());
}

void TestWavFile::refusesImpossibleRawFormats()
{
    QVERIFY(!measure::mixFrames(bytesOf(frames()), 0, 2));
    QVERIFY(!measure::mixFrames(bytesOf(frames()), measure::maxSampleRate + 1, 2));
    QVERIFY(!measure::mixFrames(bytesOf(frames()), 48000, 0));
    QVERIFY(!measure::mixFrames(bytesOf(frames()), 48000, measure::maxChannelCount + 1));
}

void TestWavFile::readsFilesFromDisk()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Prüfung スピ.wav"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(goodWav()) == goodWav().size());
    file.close();
    const std::filesystem::path native(path.toStdU16String());
    QCOMPARE(measure::readWavFile(native)->samples.size(), std::size_t{2});
    QCOMPARE(measure::readRawFile(native, 8000, 1)->samples.size(), static_cast<std::size_t>(goodWav().size() / 2));
}

void TestWavFile::refusesMissingFilesAndFolders()
{
    const QTemporaryDir folder;
    const std::filesystem::path path(folder.path().toStdU16String());
    QVERIFY(!measure::readWavFile(path / "missing.wav"));
    QVERIFY(!measure::readRawFile(path / "missing.raw", 48000, 2));
    QVERIFY(!measure::readWavFile(path));
    QVERIFY(!measure::readRawFile(path, 48000, 2));
}

QTEST_GUILESS_MAIN(TestWavFile)
#include "tst_wav_file.moc"
