// SPDX-License-Identifier: Apache-2.0
#include "utils/application_folders.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <pwd.h>
#include <unistd.h>

using namespace ostra::utils;

class TestApplicationFoldersLinux : public QObject {
    Q_OBJECT

private slots:
    void readsTheBaseFolders_data();
    void readsTheBaseFolders();
    void takesTheHomeOfTheAccountWhenNoneIsSet();
    void namesTheAccountOfTheProcess();
    void currentFolderMayBeLong();
    void removedCurrentFolderIsUnknown();
};

void TestApplicationFoldersLinux::readsTheBaseFolders_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QByteArray>("cache");
    QTest::addColumn<QByteArray>("home");
    QTest::addColumn<QString>("dataFolder");
    QTest::addColumn<QString>("cacheFolder");
    const auto add = [](const char *row, const QByteArray &data, const QByteArray &cache, const QByteArray &home,
                        const QString &dataFolder, const QString &cacheFolder) {
        QTest::newRow(row) << data << cache << home << dataFolder << cacheFolder;
    };
    const QString homeData = QStringLiteral("/h/.local/share");
    const QString homeCache = QStringLiteral("/h/.cache");
    add("neither set", {}, {}, "/h", homeData, homeCache);
    add("both set", "/d", "/c", "/h", QStringLiteral("/d"), QStringLiteral("/c"));
    add("one set", "/d", {}, "/h", QStringLiteral("/d"), homeCache);
    add("relative ones do not count", "d", "./c", "/h", homeData, homeCache);
    add("separators at the end", "/d//", "/c/", "/h", QStringLiteral("/d"), QStringLiteral("/c"));
    add("letters", "/\xD0\x91", {}, "/h", QStringLiteral("/Б"), homeCache);
    add("a root as home", {}, {}, "/", QStringLiteral("//.local/share"), QStringLiteral("//.cache"));
}

void TestApplicationFoldersLinux::readsTheBaseFolders()
{
    QFETCH(QByteArray, data);
    QFETCH(QByteArray, cache);
    QFETCH(QByteArray, home);
    qputenv("XDG_DATA_HOME", data);
    qputenv("XDG_CACHE_HOME", cache);
    qputenv("HOME", home);
    QTEST(QString::fromStdU16String(systemDataFolder()), "dataFolder");
    QTEST(QString::fromStdU16String(systemCacheFolder()), "cacheFolder");
}

void TestApplicationFoldersLinux::takesTheHomeOfTheAccountWhenNoneIsSet()
{
    qunsetenv("XDG_CACHE_HOME");
    qputenv("HOME", "relative");
    const QString home = QString::fromLocal8Bit(::getpwuid(::geteuid())->pw_dir);
    QCOMPARE(QString::fromStdU16String(systemCacheFolder()), home + QStringLiteral("/.cache"));
}

void TestApplicationFoldersLinux::namesTheAccountOfTheProcess()
{
    QCOMPARE(QString::fromStdU16String(systemUserName()), QString::fromLocal8Bit(::getpwuid(::geteuid())->pw_name));
}

void TestApplicationFoldersLinux::currentFolderMayBeLong()
{
    const QTemporaryDir root;
    const QString deep = root.path() + (u'/' + QString(200, u'a')).repeated(3);
    QVERIFY(QDir().mkpath(deep) && QDir::setCurrent(deep));
    QCOMPARE(QString::fromStdU16String(applicationFolder(6)), QDir::currentPath() + QStringLiteral("/scripts/"));
    QVERIFY(QDir::setCurrent(QDir::rootPath()));
}

void TestApplicationFoldersLinux::removedCurrentFolderIsUnknown()
{
    QTemporaryDir folder;
    QVERIFY(QDir::setCurrent(folder.path()) && folder.remove());
    QVERIFY(applicationFolder(6) == u"/scripts/");
    QVERIFY(QDir::setCurrent(QDir::rootPath()));
}

QTEST_GUILESS_MAIN(TestApplicationFoldersLinux)
#include "tst_application_folders_linux.moc"
