// SPDX-License-Identifier: Apache-2.0
#include "utils/application_folders.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <windows.h>

using namespace ostra::utils;

class TestApplicationFoldersWindows : public QObject {
    Q_OBJECT

private slots:
    void standardSystemHasItsFoldersOnTheSystemDrive();
    void namesTheUserWhoIsLoggedOn();
    void currentFolderOf259CharactersFits();
    void longerCurrentFolderIsLeftOut();

private:
    static QString folderOfLength(const QString &root, qsizetype length);
};

namespace {

// Windows itself may refuse so long a current folder. Wine takes it: a test that is skipped there would be none.
bool canBeEntered(const QString &folder)
{
    const bool isEntered = SetCurrentDirectoryW(folder.toStdWString().c_str()) != FALSE;
    const bool isWine = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    if (isWine && !isEntered)
        qFatal("Wine refuses the folder");
    return isEntered;
}

} // namespace

QString TestApplicationFoldersWindows::folderOfLength(const QString &root, qsizetype length)
{
    QString folder = root;
    while (length - folder.size() > 100)
        folder += u'\\' + QString(60, u'a');
    return folder + u'\\' + QString(length - folder.size() - 1, u'b');
}

void TestApplicationFoldersWindows::standardSystemHasItsFoldersOnTheSystemDrive()
{
    const QString user = QString::fromStdU16String(systemUserName());
    QCOMPARE(QString::fromStdU16String(applicationFolder(9)),
             QStringLiteral("C:\\ProgramData\\Tamrex\\VMK\\") + user + QStringLiteral("\\temp\\"));
}

void TestApplicationFoldersWindows::namesTheUserWhoIsLoggedOn()
{
    QCOMPARE(QString::fromStdU16String(systemUserName()), qEnvironmentVariable("USERNAME"));
}

// 259 characters and the terminator fill the buffer; SetCurrentDirectoryW takes no more without the long-path setting.
void TestApplicationFoldersWindows::currentFolderOf259CharactersFits()
{
    const QString before = QDir::currentPath();
    const QTemporaryDir root;
    const QString folder = folderOfLength(QDir::toNativeSeparators(QDir(root.path()).canonicalPath()), 258);
    QVERIFY(QDir().mkpath(folder));
    if (!canBeEntered(folder))
        QSKIP("this system takes no such current folder");
    const QString path = QString::fromStdU16String(applicationFolder(6));
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(path.toLower(), (folder + QStringLiteral("\\scripts\\")).toLower());
}

void TestApplicationFoldersWindows::longerCurrentFolderIsLeftOut()
{
    const QString before = QDir::currentPath();
    const QTemporaryDir root;
    const QString folder = folderOfLength(QDir::toNativeSeparators(QDir(root.path()).canonicalPath()), 300);
    QVERIFY(QDir().mkpath(folder));
    if (!canBeEntered(folder))
        QSKIP("this system takes no such current folder");
    const std::u16string path = applicationFolder(6);
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(path == u"\\scripts\\");
}

QTEST_GUILESS_MAIN(TestApplicationFoldersWindows)
#include "tst_application_folders_windows.moc"
