// SPDX-License-Identifier: Apache-2.0
#include "utils/temporary_icon_folder.h"

#include "utils/icon_recolouring.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>

#include <windows.h>

#include <string>

using ostra::utils::ensureTemporaryIconFolder;

namespace {

constexpr int bound = 30000;          // ms; for a program that takes a hundredth of a second
constexpr DWORD withoutPrivilege = 2; // SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE

std::wstring native(const QString &path) { return QDir::toNativeSeparators(path).toStdWString(); }

bool isReparsePoint(const QString &path)
{
    const DWORD attributes = GetFileAttributesW(native(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

bool isWine() { return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr; }

// A program of the system below Wine. No handle tells when it has ended.
void runBelowWine(std::wstring command)
{
    const std::wstring program = L"\\\\?\\unix" + command.substr(0, command.find(L' '));
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process) == 0)
        return;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

std::wstring quotedBelowWine(const QString &path) { return L'"' + path.mid(2).toStdWString() + L'"'; } // without the drive

// Wine's own call only claims to make links, but one of the system below it shows as a reparse point.
bool makeLink(const QString &target, const QString &link)
{
    CreateSymbolicLinkW(native(link).c_str(), native(target).c_str(), SYMBOLIC_LINK_FLAG_DIRECTORY | withoutPrivilege);
    if (isReparsePoint(link) || !isWine())
        return isReparsePoint(link);
    runBelowWine(L"/bin/ln -s " + quotedBelowWine(target) + L' ' + quotedBelowWine(link));
    return QTest::qWaitFor([&link] { return isReparsePoint(link); }, bound);
}

bool removeLink(const QString &link)
{
    if (!isWine())
        return QDir().rmdir(link);
    runBelowWine(L"/bin/rm " + quotedBelowWine(link));
    return QTest::qWaitFor([&link] { return !isReparsePoint(link); }, bound);
}

} // namespace

class TestTemporaryIconFolderWindows : public QObject {
    Q_OBJECT

private slots:
    void makesEveryMissingFolder();
    void acceptsSeparatorsAtTheEnd_data();
    void acceptsSeparatorsAtTheEnd();
    void acceptsALongName();
    void refusesALink();
    void refusesAFileInItsPlace();
    void refusesNoName();

private:
    // On the drive that Wine maps to the root of the system below it; the temporary folder may lie on another one.
    const QTemporaryDir root_{QDir::currentPath() + QStringLiteral("/XXXXXX")};
};

void TestTemporaryIconFolderWindows::makesEveryMissingFolder()
{
    const QString folder = root_.filePath(QStringLiteral("a/b/temp"));
    QVERIFY(ensureTemporaryIconFolder(folder));
    QVERIFY(QDir(folder).exists());
    QVERIFY(ensureTemporaryIconFolder(folder));
}

void TestTemporaryIconFolderWindows::acceptsSeparatorsAtTheEnd_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("slash") << QStringLiteral("/");
    QTest::newRow("slashes") << QStringLiteral("//");
    QTest::newRow("backslash") << QStringLiteral("\\");
    QTest::newRow("both") << QStringLiteral("\\/");
}

void TestTemporaryIconFolderWindows::acceptsSeparatorsAtTheEnd()
{
    QFETCH(QString, end);
    const QString folder = root_.filePath(QLatin1String(QTest::currentDataTag()));
    QVERIFY(ensureTemporaryIconFolder(folder + end));
    QVERIFY(QDir(folder).exists());
}

void TestTemporaryIconFolderWindows::acceptsALongName()
{
    const QString part = QLatin1Char('/') + QString(120, u'n');
    const QString folder = root_.path() + part + part + part;
    QVERIFY(ensureTemporaryIconFolder(folder));
    QVERIFY(QDir(folder).exists());
}

void TestTemporaryIconFolderWindows::refusesALink()
{
    const QString target = root_.filePath(QStringLiteral("target"));
    const QString link = root_.filePath(QStringLiteral("link"));
    QVERIFY(QDir().mkpath(target));
    const bool isLinked = makeLink(target, link);
    QVERIFY(isLinked || !isWine()); // below Wine one can always be made
    if (!isLinked)
        QSKIP("This system makes no symbolic link for this user; a file in the folder's place is refused all the same.");
    QVERIFY(QDir(link).exists());
    for (const char *end : {"", "/", "\\", "//"})
        QVERIFY2(!ensureTemporaryIconFolder(link + QLatin1String(end)), end);
    QObject dialog;
    QCOMPARE(ostra::utils::writeTemporarySvg(&dialog, {}, QStringLiteral("<svg/>"), link), nullptr);
    QVERIFY(QDir(target).isEmpty());
    QVERIFY(ensureTemporaryIconFolder(link + QStringLiteral("/temp"))); // links above are the user's own arrangement
    QVERIFY(removeLink(link));
}

void TestTemporaryIconFolderWindows::refusesAFileInItsPlace()
{
    QTemporaryFile file(root_.filePath(QStringLiteral("XXXXXX")));
    QVERIFY(file.open());
    QVERIFY(!ensureTemporaryIconFolder(file.fileName()));
    QVERIFY(!ensureTemporaryIconFolder(file.fileName() + QStringLiteral("/temp")));
}

void TestTemporaryIconFolderWindows::refusesNoName() { QVERIFY(!ensureTemporaryIconFolder(QString())); }

QTEST_GUILESS_MAIN(TestTemporaryIconFolderWindows)
#include "tst_temporary_icon_folder_windows.moc"
