// SPDX-License-Identifier: Apache-2.0
// The guardian's program, its pipes and its files; nobody changes a volume here.
#include "host/guardian/guardian_client.h"
#include "host/guardian/note_file.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QLockFile>
#include <QObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using host::GuardianClient;
using host::NoteFile;

namespace {

constexpr int limitMilliseconds = 60'000;

const QByteArray ready("{\"event\":\"ready\"}");
const QByteArray done("{\"event\":\"done\"}");

QString program() { return QCoreApplication::applicationDirPath() + QStringLiteral("/volume_guardian"); }

QByteArray readLine(QProcess &process)
{
    while (!process.canReadLine() && process.waitForReadyRead(limitMilliseconds)) {
    }
    return process.readLine().trimmed();
}

// Whoever waits for a line may have seen the end already.
bool hasEnded(QProcess &process)
{
    return process.state() == QProcess::NotRunning || process.waitForFinished(limitMilliseconds);
}

// As if the lock had been taken long ago.
void ageLock(const QString &folder)
{
    QFile file(host::lockFilePath(folder));
    if (file.open(QIODevice::ReadWrite))
        file.setFileTime(QDateTime::currentDateTimeUtc().addSecs(-3600), QFileDevice::FileModificationTime);
}

} // namespace

class TestGuardianProcess : public QObject {
    Q_OBJECT

private slots:
    void init();
    void notesBeforeItIsReady();
    void endsByCommand_data();
    void endsByCommand();
    void endsWithThePipe_data();
    void endsWithThePipe();
    void endsWithItsHost();
    void wantsAFolder();
    void saysThatTheNoteCannotBeWritten();
    void clientStartsAndFinishes();
    void clientFinishesWithItsLife();
    void clientRefusesToStartTwice();
    void clientMeetsAnotherGuardian_data();
    void clientMeetsAnotherGuardian();
    void clientTakesOverTheLockOfADeadGuardian_data();
    void clientTakesOverTheLockOfADeadGuardian();
    void clientSurvivesADamagedNote();
    void clientNamesEveryEndpoint();
    void clientSaysThatThereIsNoGuardian();

private:
    QString folder() const { return folder_->path(); }
    NoteFile note() const { return NoteFile(folder()); }

    std::unique_ptr<QTemporaryDir> folder_;
};

void TestGuardianProcess::init() { folder_ = std::make_unique<QTemporaryDir>(); }

void TestGuardianProcess::notesBeforeItIsReady()
{
    QProcess guardian;
    guardian.start(program(), {folder()});
    QCOMPARE(readLine(guardian), ready);
    const auto noted = note().read();
    QVERIFY(noted);
    QVERIFY(noted->volumes.size() >= 3); // Wine has an endpoint of its own, and shows monitors
    guardian.kill();
    QVERIFY(hasEnded(guardian));
    QVERIFY(note().read());
}

void TestGuardianProcess::endsByCommand_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("command") << QByteArray("finish\n");
    QTest::newRow("after other lines") << QByteArray("hello\n\n") + QByteArray(5000, 'x') + "\nfinish\n";
}

void TestGuardianProcess::endsByCommand()
{
    QFETCH(const QByteArray, written);
    QProcess guardian;
    guardian.start(program(), {folder()});
    QCOMPARE(readLine(guardian), ready);
    guardian.write(written);
    QCOMPARE(readLine(guardian), done);
    QVERIFY(hasEnded(guardian));
    QCOMPARE(guardian.exitCode(), 0);
    QVERIFY(!QFile::exists(note().path()));
    QVERIFY(!QFile::exists(host::lockFilePath(folder())));
}

void TestGuardianProcess::endsWithThePipe_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("half a command") << QByteArray("fini");
}

void TestGuardianProcess::endsWithThePipe()
{
    QFETCH(const QByteArray, written);
    QProcess guardian;
    guardian.start(program(), {folder()});
    QCOMPARE(readLine(guardian), ready);
    guardian.write(written);
    guardian.closeWriteChannel();
    QCOMPARE(readLine(guardian), done);
    QVERIFY(hasEnded(guardian));
    QCOMPARE(guardian.exitCode(), 0);
    QVERIFY(!QFile::exists(note().path()));
}

// No other process may hold the pipe of a killed host open.
void TestGuardianProcess::endsWithItsHost()
{
    QProcess host;
    host.start(QCoreApplication::applicationDirPath() + QStringLiteral("/../hold_volumes/" HOLD_VOLUMES), {folder()});
    QCOMPARE(readLine(host), QByteArray("holding"));
    QVERIFY(QFile::exists(note().path()));
    host.kill();
    QVERIFY(hasEnded(host));
    QTRY_VERIFY_WITH_TIMEOUT(!QFile::exists(host::lockFilePath(folder())), 10'000);
    QVERIFY(!QFile::exists(note().path()));
}

void TestGuardianProcess::wantsAFolder()
{
    QProcess guardian;
    guardian.start(program(), QStringList());
    QVERIFY(hasEnded(guardian));
    QCOMPARE(guardian.exitCode(), 2);
    QCOMPARE(guardian.readAllStandardError().trimmed(), QByteArray("usage: volume_guardian STATE_FOLDER"));
}

void TestGuardianProcess::saysThatTheNoteCannotBeWritten()
{
    QFile file(folder() + QStringLiteral("/file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    GuardianClient client(file.fileName() + QStringLiteral("/state"));
    QVERIFY(!client.start());
    QCOMPARE(client.errorText(), QStringLiteral("The folder for the note of the volumes cannot be used."));
}

void TestGuardianProcess::clientStartsAndFinishes()
{
    GuardianClient client(folder());
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(client.restoreLeftovers(), QStringList());
        QVERIFY2(client.start(), qPrintable(client.errorText()));
        QVERIFY(QFile::exists(note().path()));
        QCOMPARE(client.restoreLeftovers(), QStringList());
        QVERIFY(QFile::exists(note().path()));
        QCOMPARE(client.finish(), QStringList());
        QCOMPARE(client.errorText(), QString());
        QVERIFY(!QFile::exists(note().path()));
        QCOMPARE(client.finish(), QStringList());
    }
}

void TestGuardianProcess::clientFinishesWithItsLife()
{
    auto client = std::make_unique<GuardianClient>(folder());
    QVERIFY2(client->start(), qPrintable(client->errorText()));
    client.reset();
    QVERIFY(!QFile::exists(note().path()));
    QVERIFY(!QFile::exists(host::lockFilePath(folder())));
}

void TestGuardianProcess::clientRefusesToStartTwice()
{
    GuardianClient client(folder());
    QVERIFY(client.start());
    QVERIFY(!client.start());
    QCOMPARE(client.errorText(), QStringLiteral("The volumes are guarded already."));
    QVERIFY(QFile::exists(note().path()));
    QCOMPARE(client.finish(), QStringList());
    QVERIFY(!QFile::exists(note().path()));
}

void TestGuardianProcess::clientMeetsAnotherGuardian_data()
{
    QTest::addColumn<bool>("isOld");
    QTest::newRow("young") << false;
    QTest::newRow("old") << true;
}

void TestGuardianProcess::clientMeetsAnotherGuardian()
{
    QFETCH(const bool, isOld);
    QProcess other;
    other.start(program(), {folder()});
    QCOMPARE(readLine(other), ready);
    if (isOld)
        ageLock(folder());
    GuardianClient client(folder());
    QCOMPARE(client.restoreLeftovers(), QStringList());
    QVERIFY(!client.start());
    QVERIFY2(client.errorText().startsWith(QStringLiteral("Another run is holding the volumes")),
             qPrintable(client.errorText()));
    QCOMPARE(client.finish(), QStringList());
    QVERIFY(QFile::exists(note().path()));
    other.write("finish\n");
    QCOMPARE(readLine(other), done);
    QVERIFY(hasEnded(other));
    QVERIFY2(client.start(), qPrintable(client.errorText()));
}

void TestGuardianProcess::clientTakesOverTheLockOfADeadGuardian_data()
{
    QTest::addColumn<QByteArray>("lock");
    QTest::newRow("empty, after a power cut") << QByteArray();
    QTest::newRow("garbage") << QByteArray("\x01\xff\n\nx");
    QTest::newRow("huge process number") << QByteArray("99999999999999999999\nvolume_guardian\n");
}

void TestGuardianProcess::clientTakesOverTheLockOfADeadGuardian()
{
    QFETCH(const QByteArray, lock);
    QFile file(host::lockFilePath(folder()));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(lock);
    file.close();
    ageLock(folder());
    GuardianClient client(folder());
    QVERIFY2(client.start(), qPrintable(client.errorText()));
}

void TestGuardianProcess::clientSurvivesADamagedNote()
{
    QFile file(note().path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\"format\":");
    file.close();
    GuardianClient client(folder());
    QVERIFY2(client.start(), qPrintable(client.errorText()));
    QVERIFY(QFile::exists(note().refusedPath()));
    QVERIFY(note().read());
    QCOMPARE(client.finish(), QStringList());
}

void TestGuardianProcess::clientNamesEveryEndpoint()
{
    const QStringList names = host::endpointsThatWillBeRaised();
    for (const char *name : {"Speakers", "Headphones", "Microphone"})
        QVERIFY2(names.contains(QLatin1String(name)), qPrintable(names.join(QLatin1Char(','))));
}

void TestGuardianProcess::clientSaysThatThereIsNoGuardian()
{
    QString file = program();
    if (!QFile::exists(file))
        file += QStringLiteral(".exe");
    QVERIFY(QFile::rename(file, file + QStringLiteral(".away")));
    GuardianClient client(folder());
    const bool isStarted = client.start();
    QVERIFY(QFile::rename(file + QStringLiteral(".away"), file));
    QVERIFY(!isStarted);
    QVERIFY(!client.isHeldByAnother());
    QCOMPARE(client.errorText(),
             QStringLiteral("The guardian of the volumes (volume_guardian) is missing or cannot be started: "
                            "should this run break down, its volumes stay raised."));
}

QTEST_GUILESS_MAIN(TestGuardianProcess)
#include "tst_guardian_process.moc"
