// SPDX-License-Identifier: Apache-2.0
#include "utils/application_folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace ostra::utils;

namespace {

std::u16string noText() { return {}; }

std::u16string withSeparators(std::u16string path)
{
    for (char16_t &unit : path)
        unit = unit == u'/' ? QDir::separator().unicode() : unit;
    return path;
}

} // namespace

class TestApplicationFolders : public QObject {
    Q_OBJECT

private slots:
    void init();
    void composesEveryFolder_data();
    void composesEveryFolder();
    void endsEveryPathWithOneSeparator();
    void upperFoldersArePrefixesOfTheLowerOnes();
    void currentScriptsFollowTheCurrentFolder();
    void doublesTheSeparatorOfARootFolder();
    void leavesOutAnUnknownDataFolder();
    void leavesOutAnUnknownUser();
    void leavesOutAnUnknownCurrentFolder();
    void knowsNoFurtherFolders_data();
    void knowsNoFurtherFolders();
    void keepsLettersOfEveryScript();
    void namesTheRealUserAndSystemFolder();
    void carriesTheRightsOfTheFolders();
};

void TestApplicationFolders::init()
{
    folderSources() = FolderSources();
    QVERIFY(QDir::setCurrent(QCoreApplication::applicationDirPath()));
}

void TestApplicationFolders::composesEveryFolder_data()
{
    QTest::addColumn<quint32>("id");
    QTest::addColumn<QString>("path");
    QTest::newRow("root") << 0U << "/data/Tamrex/";
    QTest::newRow("product") << 1U << "/data/Tamrex/VMK/";
    QTest::newRow("user") << 2U << "/data/Tamrex/VMK/alice/";
    QTest::newRow("logs") << 3U << "/data/Tamrex/VMK/alice/logs/";
    QTest::newRow("workers") << 4U << "/data/Tamrex/VMK/alice/wkrs/";
    QTest::newRow("scripts") << 5U << "/data/Tamrex/VMK/alice/scripts/";
    QTest::newRow("current scripts") << 6U << "/desk/scripts/";
    QTest::newRow("web engine") << 7U << "/cache/Tamrex/VMK/alice/QtWebEngine/";
    QTest::newRow("thermal monitor logs") << 8U << "/data/Tamrex/VMK/alice/logs_thermal_monitor_tool/";
    QTest::newRow("temporary files") << 9U << "/cache/Tamrex/VMK/alice/temp/";
    QTest::newRow("tool logs") << 10U << "/data/Tamrex/VMK/alice/logs_tools/";
}

void TestApplicationFolders::composesEveryFolder()
{
    folderSources().dataFolder = [] { return withSeparators(u"/data"); };
    folderSources().cacheFolder = [] { return withSeparators(u"/cache"); };
    folderSources().userName = [] { return std::u16string(u"alice"); };
    folderSources().currentFolder = [] { return withSeparators(u"/desk"); };
    QFETCH(quint32, id);
    QFETCH(QString, path);
    QCOMPARE(QString::fromStdU16String(applicationFolder(id)), QDir::toNativeSeparators(path));
    QCOMPARE(QString::fromStdString(applicationFolderUtf8(id)), QDir::toNativeSeparators(path));
}

void TestApplicationFolders::endsEveryPathWithOneSeparator()
{
    const QString separator = QDir::separator();
    for (quint32 id = 0; id <= 10; ++id) {
        const QString path = QString::fromStdU16String(applicationFolder(id));
        QVERIFY2(path.endsWith(separator) && !path.endsWith(separator + separator), qPrintable(path));
    }
}

// The base of 7 and 9 is another one where the system tells data and cache apart.
void TestApplicationFolders::upperFoldersArePrefixesOfTheLowerOnes()
{
    for (quint32 id = 3; id <= 10; ++id) {
        folderSources().dataFolder = id == 7 || id == 9 ? &systemCacheFolder : &systemDataFolder;
        const std::u16string path = applicationFolder(id);
        for (quint32 upper = 0; upper <= 2; ++upper)
            QCOMPARE(path.starts_with(applicationFolder(upper)), id != 6);
    }
}

void TestApplicationFolders::currentScriptsFollowTheCurrentFolder()
{
    const QTemporaryDir first;
    const QTemporaryDir second;
    for (const QTemporaryDir *folder : {&first, &second}) {
        QVERIFY(QDir::setCurrent(folder->path()));
        const QString expected = QDir::toNativeSeparators(QDir::currentPath() + QStringLiteral("/scripts/"));
        QCOMPARE(QString::fromStdU16String(applicationFolder(6)).toLower(), expected.toLower());
    }
    QVERIFY(QDir::setCurrent(QCoreApplication::applicationDirPath()));
}

void TestApplicationFolders::doublesTheSeparatorOfARootFolder()
{
    QVERIFY(QDir::setCurrent(QDir::rootPath()));
    QCOMPARE(QString::fromStdU16String(applicationFolder(6)),
             QDir::toNativeSeparators(QDir::rootPath()) + QDir::separator() + QStringLiteral("scripts") + QDir::separator());
}

void TestApplicationFolders::leavesOutAnUnknownDataFolder()
{
    folderSources().dataFolder = &noText;
    folderSources().cacheFolder = &noText;
    folderSources().userName = [] { return std::u16string(u"alice"); };
    QVERIFY(applicationFolder(0) == withSeparators(u"/Tamrex/"));
    QVERIFY(applicationFolder(9) == withSeparators(u"/Tamrex/VMK/alice/temp/"));
}

void TestApplicationFolders::leavesOutAnUnknownUser()
{
    folderSources().userName = &noText;
    QVERIFY(applicationFolder(1) + withSeparators(u"/") == applicationFolder(2));
    QVERIFY(applicationFolder(3).ends_with(withSeparators(u"/VMK//logs/")));
}

void TestApplicationFolders::leavesOutAnUnknownCurrentFolder()
{
    folderSources().currentFolder = &noText;
    QVERIFY(applicationFolder(6) == withSeparators(u"/scripts/"));
}

void TestApplicationFolders::knowsNoFurtherFolders_data()
{
    QTest::addColumn<quint32>("id");
    QTest::newRow("first unknown") << 11U;
    QTest::newRow("last unknown") << 0xFFFFFFFFU;
    QTest::newRow("low byte is known") << 0x109U;
}

void TestApplicationFolders::knowsNoFurtherFolders()
{
    QFETCH(quint32, id);
    QVERIFY(applicationFolder(id).empty());
    QVERIFY(applicationFolderUtf8(id).empty());
}

void TestApplicationFolders::keepsLettersOfEveryScript()
{
    folderSources().userName = [] { return std::u16string(u"Бета-スピ\U0001F600"); };
    QVERIFY(applicationFolder(2).ends_with(withSeparators(u"/Бета-スピ\U0001F600/")));
    QVERIFY(QString::fromStdString(applicationFolderUtf8(2)).contains(QStringLiteral("Бета-スピ😀")));
}

void TestApplicationFolders::namesTheRealUserAndSystemFolder()
{
    QVERIFY(!systemUserName().empty());
    QVERIFY(systemUserName().find(u'\0') == std::u16string::npos);
    const QString data = QString::fromStdU16String(systemDataFolder());
    QVERIFY2(QDir::isAbsolutePath(data), qPrintable(data));
    QVERIFY(!data.endsWith(QDir::separator()));
}

void TestApplicationFolders::carriesTheRightsOfTheFolders()
{
    QVERIFY(applicationFolderRights == u"D:(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)(A;OICI;0x1200a9;;;BU)");
}

QTEST_GUILESS_MAIN(TestApplicationFolders)
#include "tst_application_folders.moc"
