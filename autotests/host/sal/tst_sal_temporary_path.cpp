// SPDX-License-Identifier: Apache-2.0
#include "host/sal/services.h"
#include "host/sal/temporary_path_linux.h"

#include <QByteArray>
#include <QFile>
#include <QObject>
#include <QString>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

#include <memory>
#include <string>

namespace {

QString pathNow() { return QString::fromStdString(sal::temporaryPathService().path()); }

QString folderOfUser() { return QStringLiteral("/module-audio-%1").arg(::geteuid()); }

mode_t modeOf(const QString &path)
{
    struct stat facts {};
    return ::lstat(QFile::encodeName(path).constData(), &facts) == 0 ? facts.st_mode & 07777U : 0;
}

} // namespace

class TestSalTemporaryPath : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void prefersTheSessionsFolder();
    void folderIsCreatedForTheUserOnly();
    void existingFolderIsUsedAgain();
    void openSessionFolderIsNotUsed();
    void relativeFoldersAreNotUsed();
    void refusesWhatIsNotThePrivateFolder_data();
    void refusesWhatIsNotThePrivateFolder();
    void refusesAFolderOfAnotherUser();

private:
    QString session() const { return folder_->filePath(QStringLiteral("session")); }
    QString temporary() const { return folder_->filePath(QStringLiteral("temporary")); }

    std::unique_ptr<QTemporaryDir> folder_;
    mode_t umask_ = 0;
};

void TestSalTemporaryPath::init()
{
    folder_ = std::make_unique<QTemporaryDir>();
    umask_ = ::umask(0); // the folder's mode must not depend on it
    QCOMPARE(::mkdir(QFile::encodeName(session()).constData(), 0700), 0);
    QCOMPARE(::mkdir(QFile::encodeName(temporary()).constData(), 0777), 0);
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(session()));
    qputenv("TMPDIR", QFile::encodeName(temporary()) + '/');
}

void TestSalTemporaryPath::cleanup()
{
    ::umask(umask_);
    folder_.reset();
}

void TestSalTemporaryPath::prefersTheSessionsFolder()
{
    QCOMPARE(pathNow(), session() + QStringLiteral("/module-audio"));
    QCOMPARE(modeOf(pathNow()), mode_t{0700});
}

void TestSalTemporaryPath::folderIsCreatedForTheUserOnly()
{
    qunsetenv("XDG_RUNTIME_DIR");
    QCOMPARE(pathNow(), temporary() + folderOfUser());
    QCOMPARE(modeOf(pathNow()), mode_t{0700});
}

void TestSalTemporaryPath::existingFolderIsUsedAgain()
{
    const QString first = pathNow();
    QVERIFY(!first.isEmpty());
    QCOMPARE(pathNow(), first);
}

void TestSalTemporaryPath::openSessionFolderIsNotUsed()
{
    QCOMPARE(::chmod(QFile::encodeName(session()).constData(), 0777), 0);
    QCOMPARE(pathNow(), temporary() + folderOfUser());
}

void TestSalTemporaryPath::relativeFoldersAreNotUsed()
{
    qputenv("XDG_RUNTIME_DIR", "session");
    qputenv("TMPDIR", "temporary");
    QCOMPARE(pathNow(), QStringLiteral("/tmp") + folderOfUser());
}

void TestSalTemporaryPath::refusesWhatIsNotThePrivateFolder_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("link to a folder of the user's") << QStringLiteral("link");
    QTest::newRow("folder that others may enter") << QStringLiteral("open");
    QTest::newRow("file") << QStringLiteral("file");
    QTest::newRow("parent is missing") << QStringLiteral("parent");
}

void TestSalTemporaryPath::refusesWhatIsNotThePrivateFolder()
{
    QFETCH(QString, kind);
    const QByteArray path = QFile::encodeName(temporary() + folderOfUser());
    qunsetenv("XDG_RUNTIME_DIR");
    if (kind == QStringLiteral("link"))
        QCOMPARE(::symlink(QFile::encodeName(session()).constData(), path.constData()), 0);
    else if (kind == QStringLiteral("open"))
        QCOMPARE(::mkdir(path.constData(), 0755), 0);
    else if (kind == QStringLiteral("file"))
        QVERIFY(QFile(QFile::decodeName(path)).open(QIODevice::WriteOnly));
    else
        qputenv("TMPDIR", QFile::encodeName(temporary()) + "/missing");
    QCOMPARE(pathNow(), QString());
}

void TestSalTemporaryPath::refusesAFolderOfAnotherUser()
{
    const std::string path = (temporary() + folderOfUser()).toStdString();
    QCOMPARE(::mkdir(path.c_str(), 0700), 0);
    constexpr uid_t nobody = 65534;
    if (::chown(path.c_str(), nobody, nobody) != 0)
        QSKIP("only the super user can give a folder away");
    QVERIFY(!sal::ensurePrivateFolder(path));
}

QTEST_GUILESS_MAIN(TestSalTemporaryPath)
#include "tst_sal_temporary_path.moc"
