// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/note_file.h"

#include "host/guardian/guardian_session.h"
#include "host/guardian/volume_note.h"

#include <QDir>
#include <QFile>
#include <QObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace host;
using ostra::audio::EndpointVolumes;

namespace {

const VolumeNote volumes{{{0.25F, true, u"one", {16384, 32768}}, {0.5F, false, u"two", {}}}, {}};

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("the test's file could not be written");
}

void expectRefusal()
{
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^the note of volumes .* is not used: .*moved aside")));
}

} // namespace

class TestNoteFile : public QObject {
    Q_OBJECT

private slots:
    void init();
    void keepsANoteUntilItIsRemoved();
    void makesTheFolder();
    void replacesANoteAsAWhole();
    void saysWhenItCouldNotBeWritten();
    void movesAside_data();
    void movesAside();
    void movesAFolderAside();
    void keepsOneRefusedNote();
    void keepsANoteOfAnotherServerForThatOne();
    void takesANoteWithoutServerForThisOnes();
    void leftoversOfADamagedNoteAreNothingToDo();

private:
    QString folder() const { return folder_->path(); }

    std::unique_ptr<QTemporaryDir> folder_;
};

void TestNoteFile::init() { folder_ = std::make_unique<QTemporaryDir>(); }

void TestNoteFile::keepsANoteUntilItIsRemoved()
{
    const NoteFile note(folder());
    QVERIFY(!note.read());
    QVERIFY(note.write(volumes));
    for (int i = 0; i < 2; ++i) {
        const auto read = NoteFile(folder()).read();
        QVERIFY(read);
        QCOMPARE(read->volumes.size(), volumes.volumes.size());
        QCOMPARE(read->volumes.front().id, volumes.volumes.front().id);
    }
    note.remove();
    QVERIFY(!note.read());
    QCOMPARE(QDir(folder()).entryList(QDir::Files), QStringList());
}

void TestNoteFile::makesTheFolder()
{
    const NoteFile note(folder() + QStringLiteral("/a/\u8033"));
    QVERIFY(!note.read());
    QVERIFY(note.write(volumes));
    QVERIFY(note.read());
}

void TestNoteFile::replacesANoteAsAWhole()
{
    const NoteFile note(folder());
    QVERIFY(note.write({EndpointVolumes(100, volumes.volumes.front()), {}}));
    QVERIFY(note.write(volumes));
    QCOMPARE(note.read()->volumes.size(), volumes.volumes.size());
    QCOMPARE(QDir(folder()).entryList(QDir::Files).size(), 1); // no half-written neighbour
}

void TestNoteFile::saysWhenItCouldNotBeWritten()
{
    writeFile(folder() + QStringLiteral("/file"), "x");
    QVERIFY(!NoteFile(folder() + QStringLiteral("/file/folder")).write(volumes));
    QDir(folder()).mkpath(QStringLiteral("volume_note.json/x"));
    QVERIFY(!NoteFile(folder()).write(volumes));
}

void TestNoteFile::movesAside_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut") << toNote(volumes).left(100);
    QTest::newRow("foreign") << QByteArray("{\"format\":\"module_audio.volume_note\",\"version\":99,\"endpoints\":[]}");
    QTest::newRow("huge") << toNote(volumes) + QByteArray(noteByteLimit, ' ');
}

void TestNoteFile::movesAside()
{
    QFETCH(const QByteArray, bytes);
    const NoteFile note(folder());
    writeFile(note.path(), bytes);
    expectRefusal();
    QVERIFY(!note.read());
    QVERIFY(!QFile::exists(note.path()));
    QFile refused(note.refusedPath());
    QVERIFY(refused.open(QIODevice::ReadOnly));
    QCOMPARE(refused.readAll(), bytes);
    QVERIFY(!note.read()); // silently: it is gone
    QVERIFY(note.write(volumes));
    QVERIFY(note.read());
}

void TestNoteFile::movesAFolderAside()
{
    const NoteFile note(folder());
    for (int i = 0; i < 2; ++i) {
        QVERIFY(QDir().mkpath(note.path() + QStringLiteral("/inner")));
        expectRefusal();
        QVERIFY(!note.read());
        QVERIFY(!QFile::exists(note.path()));
        QVERIFY(QDir(note.refusedPath() + QStringLiteral("/inner")).exists());
    }
}

void TestNoteFile::keepsOneRefusedNote()
{
    const NoteFile note(folder());
    for (const char *bytes : {"first", "second"}) {
        writeFile(note.path(), bytes);
        expectRefusal();
        QVERIFY(!note.read());
    }
    QCOMPARE(QDir(folder()).entryList(QDir::Files), QStringList{QStringLiteral("volume_note.json.refused")});
    QFile refused(note.refusedPath());
    QVERIFY(refused.open(QIODevice::ReadOnly));
    QCOMPARE(refused.readAll(), QByteArray("second"));
}

void TestNoteFile::keepsANoteOfAnotherServerForThatOne()
{
    const QString here = QStringLiteral("here");
    const NoteFile note(folder());
    QVERIFY(!note.isThere());
    QVERIFY(note.write({volumes.volumes, QStringLiteral("there")}));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^a note of volumes belongs to another sound server \\(there\\)")));
    QVERIFY(!note.readFor(here));
    QVERIFY(!note.readFor(here));
    QVERIFY(note.isThere());
    QVERIFY(note.write({{}, here}));
    QVERIFY(note.readFor(here));
    note.remove();
    const auto read = note.readFor(QStringLiteral("there"));
    QVERIFY(read);
    QCOMPARE(read->volumes.size(), volumes.volumes.size());
    note.remove();
    QVERIFY(!note.isThere());
}

void TestNoteFile::takesANoteWithoutServerForThisOnes()
{
    const NoteFile note(folder());
    QVERIFY(note.write(volumes));
    QVERIFY(note.readFor(QStringLiteral("here")));
    QVERIFY(note.write({{}, QStringLiteral("there")}));
    QVERIFY(note.readFor({}));
    QVERIFY(note.read());
}

void TestNoteFile::leftoversOfADamagedNoteAreNothingToDo()
{
    QString complaint;
    const NoteFile note(folder());
    writeFile(note.path(), "{");
    expectRefusal();
    const PutBack result = putBackLeftovers(folder(), complaint);
    QVERIFY(result.isDone);
    QCOMPARE(result.names, QStringList());
    QCOMPARE(QDir(folder()).entryList(QDir::Files), QStringList{QStringLiteral("volume_note.json.refused")});
}

QTEST_GUILESS_MAIN(TestNoteFile)
#include "tst_note_file.moc"
