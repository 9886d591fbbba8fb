// SPDX-License-Identifier: Apache-2.0
#include "utils/temporary_icon_folder.h"

#include "autotests/support/process_facts.h"
#include "autotests/utils/file_size_limit.h"
#include "utils/icon_recolouring.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using ostra::utils::ensureTemporaryIconFolder;

namespace {

mode_t modeOf(const QString &folder)
{
    struct stat facts {};
    return ::stat(QFile::encodeName(folder).constData(), &facts) == 0 ? facts.st_mode & 07777 : 0;
}

QStringList entriesOf(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

bool setMode(const QString &folder, mode_t mode) { return ::chmod(QFile::encodeName(folder).constData(), mode) == 0; }

} // namespace

class TestTemporaryIconFolder : public QObject {
    Q_OBJECT

private slots:
    void makesEveryMissingFolderPrivate();
    void acceptsAnExistingFolderAndItsMode();
    void acceptsSeparatorsAtTheEnd();
    void refusesALink();
    void refusesWhatOthersMayReplaceFilesIn_data();
    void refusesWhatOthersMayReplaceFilesIn();
    void refusesAFolderOfAnotherUser();
    void refusesAFileInItsPlace();
    void refusesNoName();
    void filesArePrivate();
    void leavesNoHalfFileWhenTheDiskIsFull_data();
    void leavesNoHalfFileWhenTheDiskIsFull();
    void managesWithAFolderThatTakesNoFiles();
};

void TestTemporaryIconFolder::makesEveryMissingFolderPrivate()
{
    const QTemporaryDir root;
    const mode_t before = ::umask(0);
    const bool made = ensureTemporaryIconFolder(root.filePath(QStringLiteral("a/b/temp")));
    ::umask(before);
    QVERIFY(made);
    for (const char *folder : {"a", "a/b", "a/b/temp"})
        QCOMPARE(modeOf(root.filePath(QString::fromLatin1(folder))), mode_t{0700});
}

void TestTemporaryIconFolder::acceptsAnExistingFolderAndItsMode()
{
    const QTemporaryDir root;
    QVERIFY(setMode(root.path(), 0755));
    QVERIFY(ensureTemporaryIconFolder(root.path()));
    QCOMPARE(modeOf(root.path()), mode_t{0755});
}

void TestTemporaryIconFolder::acceptsSeparatorsAtTheEnd()
{
    const QTemporaryDir root;
    QVERIFY(ensureTemporaryIconFolder(root.filePath(QStringLiteral("temp//"))));
    QVERIFY(ensureTemporaryIconFolder(root.filePath(QStringLiteral("temp/"))));
}

void TestTemporaryIconFolder::refusesALink()
{
    const QTemporaryDir root;
    const QTemporaryDir target;
    const QString link = root.filePath(QStringLiteral("temp"));
    QVERIFY(QFile::link(target.path(), link));
    QVERIFY(!ensureTemporaryIconFolder(link));
    QVERIFY(!ensureTemporaryIconFolder(link + u'/'));
    QVERIFY(ensureTemporaryIconFolder(link + QStringLiteral("/temp"))); // links above are the user's own arrangement
}

void TestTemporaryIconFolder::refusesWhatOthersMayReplaceFilesIn_data()
{
    QTest::addColumn<uint>("mode");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("everybody") << 0777U << false;
    QTest::newRow("group") << 0770U << false;
    QTest::newRow("everybody, own files only") << 01777U << true;
}

void TestTemporaryIconFolder::refusesWhatOthersMayReplaceFilesIn()
{
    QFETCH(uint, mode);
    const QTemporaryDir root;
    QVERIFY(setMode(root.path(), mode));
    QTEST(ensureTemporaryIconFolder(root.path()), "accepted");
}

// An ordinary user meets the superuser's folder, the superuser gives one away.
void TestTemporaryIconFolder::refusesAFolderOfAnotherUser()
{
    const QTemporaryDir root;
    QString foreign = QStringLiteral("/usr");
    if (::geteuid() == 0) {
        foreign = root.filePath(QStringLiteral("temp"));
        QVERIFY(ensureTemporaryIconFolder(foreign));
        QCOMPARE(::chown(QFile::encodeName(foreign).constData(), 65534, 65534), 0);
    }
    QVERIFY(!ensureTemporaryIconFolder(foreign));
    QObject dialog;
    QCOMPARE(ostra::utils::writeTemporarySvg(&dialog, {}, QStringLiteral("<svg/>"), foreign), nullptr);
}

void TestTemporaryIconFolder::refusesAFileInItsPlace()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    QVERIFY(!ensureTemporaryIconFolder(file.fileName()));
    QVERIFY(!ensureTemporaryIconFolder(file.fileName() + QStringLiteral("/temp")));
}

void TestTemporaryIconFolder::refusesNoName() { QVERIFY(!ensureTemporaryIconFolder(QString())); }

void TestTemporaryIconFolder::filesArePrivate()
{
    const QTemporaryDir root;
    QObject dialog;
    const mode_t before = ::umask(0);
    const QTemporaryFile *file = ostra::utils::writeTemporarySvg(&dialog, {}, QStringLiteral("<svg/>"), root.path());
    ::umask(before);
    QVERIFY(file != nullptr);
    QCOMPARE(modeOf(file->fileName()), mode_t{0600});
}

void TestTemporaryIconFolder::leavesNoHalfFileWhenTheDiskIsFull_data()
{
    QTest::addColumn<qsizetype>("byteCount");
    QTest::addColumn<qsizetype>("room");
    QTest::newRow("no room for an icon") << qsizetype(400) << qsizetype(0);
    QTest::newRow("room for a part of it") << qsizetype(400) << qsizetype(100);
    QTest::newRow("more than is written at once") << qsizetype(1 << 20) << qsizetype(100);
    QTest::newRow("all but the last byte") << qsizetype(1 << 20) << qsizetype((1 << 20) - 1);
}

void TestTemporaryIconFolder::leavesNoHalfFileWhenTheDiskIsFull()
{
    QFETCH(const qsizetype, byteCount);
    QFETCH(const qsizetype, room);
    const QTemporaryDir root;
    const QString text(byteCount, u'x');
    QObject dialog;
    const std::size_t descriptors = process_facts::now().handles;
    bool isInForce = false;
    const QTemporaryFile *file = nullptr;
    {
        const FileSizeLimit limit(static_cast<rlim_t>(room));
        isInForce = limit.isInForce();
        file = ostra::utils::writeTemporarySvg(&dialog, QStringLiteral("play"), text, root.path());
    }
    QVERIFY(isInForce);
    QCOMPARE(file, nullptr);
    QVERIFY(dialog.children().isEmpty());
    QCOMPARE(entriesOf(root.path()), QStringList());
    QCOMPARE(process_facts::now().handles, descriptors);
    file = ostra::utils::writeTemporarySvg(&dialog, QStringLiteral("play"), text, root.path()); // there is room again
    QVERIFY(file != nullptr);
    QCOMPARE(QFileInfo(file->fileName()).size(), byteCount);
}

// Of this user and closed to others, as it has to be; but even the superuser makes no file there.
void TestTemporaryIconFolder::managesWithAFolderThatTakesNoFiles()
{
    const QString folder = QStringLiteral("/proc/self/task");
    QVERIFY(ensureTemporaryIconFolder(folder));
    QObject dialog;
    QCOMPARE(ostra::utils::writeTemporarySvg(&dialog, QStringLiteral("play"), QStringLiteral("<svg/>"), folder), nullptr);
    QVERIFY(dialog.children().isEmpty());
}

QTEST_GUILESS_MAIN(TestTemporaryIconFolder)
#include "tst_temporary_icon_folder.moc"
