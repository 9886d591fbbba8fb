// SPDX-License-Identifier: Apache-2.0
#include "utils/temporary_icon_folder.h"

#include "utils/icon_recolouring.h"

#include <QFile>
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

QTEST_GUILESS_MAIN(TestTemporaryIconFolder)
#include "tst_temporary_icon_folder.moc"
