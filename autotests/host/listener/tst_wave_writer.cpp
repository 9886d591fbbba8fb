// SPDX-License-Identifier: Apache-2.0
#include "host/listener/wave_writer.h"

#include "host/measure/wav_file.h"

#include <QDir>
#include <QFile>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <vector>

namespace {

std::optional<measure::MonoSound> soundOf(const QString &file) { return measure::readWavFile(file.toStdU16String()); }

} // namespace

class TestWaveWriter : public QObject {
    Q_OBJECT

private slots:
    void keepsEveryFrame();
    void isWholeAfterEachBlock();
    void cutsOffBeyondFullScale();
    void emptiesAnOldFile();
    void tellsWhyItCannotWrite();
};

void TestWaveWriter::keepsEveryFrame()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("h\u8033.wav"));
    host::WaveWriter writer;
    QVERIFY2(writer.open(file), qPrintable(writer.errorText()));
    std::vector<float> frames;
    for (int frame = 0; frame < 1000; ++frame)
        frames.insert(frames.end(), {static_cast<float>(frame) / 2048, static_cast<float>(frame) / 1024});
    QVERIFY(writer.append(frames));
    const auto sound = soundOf(file);
    QVERIFY(sound);
    QCOMPARE(sound->sampleRate, 48000U);
    QCOMPARE(sound->samples.size(), std::size_t{1000});
    for (std::size_t frame = 0; frame < 1000; ++frame)
        QVERIFY(std::abs(sound->samples[frame] - static_cast<float>(frame) * 1.5F / 2048) < 1.0F / 32768);
}

void TestWaveWriter::isWholeAfterEachBlock()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("h.wav"));
    host::WaveWriter writer;
    QVERIFY(writer.open(file));
    QVERIFY(soundOf(file) && soundOf(file)->samples.empty());
    for (std::size_t block = 1; block <= 3; ++block) {
        QVERIFY(writer.append(std::vector<float>(960, 0.25F)));
        QCOMPARE(soundOf(file)->samples.size(), 480 * block);
        QCOMPARE(QFile(file).size(), static_cast<qint64>(44 + 1920 * block));
    }
}

void TestWaveWriter::cutsOffBeyondFullScale()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("h.wav"));
    host::WaveWriter writer;
    QVERIFY(writer.open(file) && writer.append(std::vector<float>{1.5F, 1.5F, -1.5F, -1.5F}));
    const auto sound = soundOf(file);
    QVERIFY(sound->samples[0] > 0.999F && sound->samples[1] < -0.999F);
}

void TestWaveWriter::emptiesAnOldFile()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("h.wav"));
    for (int turn = 0; turn < 2; ++turn) {
        host::WaveWriter writer;
        QVERIFY(writer.open(file) && writer.append(std::vector<float>(turn == 0 ? 4000 : 20, 0.5F)));
    }
    QCOMPARE(soundOf(file)->samples.size(), std::size_t{10});
    QCOMPARE(QFile(file).size(), qint64{44 + 40});
}

void TestWaveWriter::tellsWhyItCannotWrite()
{
    const QTemporaryDir folder;
    host::WaveWriter writer;
    QVERIFY(!writer.open(folder.filePath(QStringLiteral("no/such/h.wav"))));
    QVERIFY(!writer.isOpen());
    QVERIFY(!writer.errorText().isEmpty());
    QVERIFY(QDir(folder.path()).isEmpty());
}

QTEST_GUILESS_MAIN(TestWaveWriter)
#include "tst_wave_writer.moc"
