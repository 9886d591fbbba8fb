// SPDX-License-Identifier: Apache-2.0
// The loss of a device without any sound server: the sound library's disk driver plays into a file of the device's name, and
// stops the device when the file takes no more.
#include "audio/sdl_api.h"
#include "autotests/audio/sound_job.h"
#include "autotests/audio/tone.h"

#include <QElapsedTimer>
#include <QFile>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace ostra::audio;

namespace {

constexpr int bound = 15000; // ms; for what the test waits for by the way
// The device is looked at every 500 ms.
constexpr qint64 noticed = 500 + 2000; // ms
constexpr int runningTime = 1200;      // ms

} // namespace

class TestDeviceLossDisk : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { SDL_Quit(); }
    void aFullDiskEndsThePlayback();
    void aReaderThatGoesEndsThePlayback();
    void aSecondDeviceOfAWorkerThatLostOneIsFresh();
    void theEndOfTheInputIsSilenceAndNoLoss();

private:
    QTemporaryDir folder_;
};

void TestDeviceLossDisk::initTestCase()
{
    std::signal(SIGPIPE, SIG_IGN); // of a pipe without a reader
    SDL_setenv("SDL_AUDIODRIVER", "disk", 1);
    SDL_setenv("SDL_DISKAUDIODELAY", "10", 1);
    QCOMPARE(SDL_InitSubSystem(SDL_INIT_AUDIO), 0);
}

void TestDeviceLossDisk::aFullDiskEndsThePlayback()
{
    QElapsedTimer timer;
    timer.start();
    PlayJob player(tone::make(440, 8), QStringLiteral("/dev/full"));
    QTRY_VERIFY_WITH_TIMEOUT(player.status(), bound);
    const qint64 elapsed = timer.elapsed();
    QCOMPARE(player.status(), 38);
    QVERIFY2(elapsed < noticed, qPrintable(QString::number(elapsed)));
    QTRY_VERIFY_WITH_TIMEOUT(player.isOver(), bound);
    qInfo("noticed after %lld ms", static_cast<long long>(elapsed));
}

void TestDeviceLossDisk::aReaderThatGoesEndsThePlayback()
{
    const QByteArray pipe = QFile::encodeName(folder_.filePath(QStringLiteral("pipe")));
    QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
    // Both ends: one that only reads would wait here for the writer.
    const int reader = open(pipe.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    QVERIFY(reader >= 0);
    QByteArray read(1 << 20, '\0');
    qint64 byteCount = 0;
    PlayJob player(tone::make(440, 8), QString::fromUtf8(pipe));
    QVERIFY(!QTest::qWaitFor(
        [&] {
            const ssize_t got = ::read(reader, read.data(), static_cast<std::size_t>(read.size()));
            byteCount += got > 0 ? got : 0;
            return player.status().has_value();
        },
        runningTime));
    QVERIFY(byteCount > 0);
    QCOMPARE(close(reader), 0);
    QElapsedTimer timer;
    timer.start();
    QTRY_VERIFY_WITH_TIMEOUT(player.status(), bound);
    const qint64 elapsed = timer.elapsed();
    QCOMPARE(player.status(), 38);
    QVERIFY2(elapsed < noticed, qPrintable(QString::number(elapsed)));
    QTRY_VERIFY_WITH_TIMEOUT(player.isOver(), bound);
    qInfo("noticed after %lld ms", static_cast<long long>(elapsed));
}

void TestDeviceLossDisk::aSecondDeviceOfAWorkerThatLostOneIsFresh()
{
    {
        PlayJob lost(tone::make(440, 1), QStringLiteral("/dev/full"));
        QTRY_VERIFY_WITH_TIMEOUT(lost.isOver(), bound);
        QTRY_COMPARE_WITH_TIMEOUT(lost.status(), 38, bound);
    }
    PlayJob player(tone::make(440, 1), folder_.filePath(QStringLiteral("out.raw")));
    player.stopAfter(std::chrono::milliseconds(300));
    QTRY_VERIFY_WITH_TIMEOUT(player.status(), bound);
    QCOMPARE(player.status(), 0);
}

void TestDeviceLossDisk::theEndOfTheInputIsSilenceAndNoLoss()
{
    const QString input = folder_.filePath(QStringLiteral("in.raw"));
    QFile file(input);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(QByteArray(4096, '\1')), 4096);
    file.close();
    const auto slot = std::make_shared<RecordingSlot>();
    RecordJob recorder(slot, input, 1);
    recorder.stopAfter(std::chrono::milliseconds(runningTime));
    QTRY_VERIFY_WITH_TIMEOUT(recorder.status(), bound);
    QCOMPARE(recorder.status(), 0);
    QVERIFY(slot->recording);
    QCOMPARE(slot->recording->samples[0], std::uint8_t{1});
    QCOMPARE(slot->recording->samples[8192], std::uint8_t{0});
}

QTEST_GUILESS_MAIN(TestDeviceLossDisk)
#include "tst_device_loss_disk.moc"
