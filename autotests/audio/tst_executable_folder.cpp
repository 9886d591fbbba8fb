// SPDX-License-Identifier: Apache-2.0
#include "audio/executable_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace ostra::audio;

class TestExecutableFolder : public QObject {
    Q_OBJECT

private slots:
    void isThisProgramsFolder();
    void hasNoBackslashAndNoTrailingSlash();
    void keepsBlanksAndNonAsciiLetters();

private:
    static QString folderOfACopyIn(const QString &folder);
};

// Copies the printing program into `folder`, runs it there and returns what it printed.
QString TestExecutableFolder::folderOfACopyIn(const QString &folder)
{
    const QString name = QStringLiteral(PRINT_FOLDER_NAME);
    const QString original = QCoreApplication::applicationDirPath() + QStringLiteral("/../print_executable_folder/") + name;
    const QString copy = folder + u'/' + name;
    const QTemporaryDir output;
    const QString printed = output.filePath(QStringLiteral("folder"));
    if (!QDir().mkpath(folder) || !QFile::copy(original, copy))
        return QStringLiteral("cannot copy");
    if (QProcess::execute(copy, {printed}) != 0)
        return QStringLiteral("cannot run");
    QFile file(printed);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QStringLiteral("cannot read");
}

void TestExecutableFolder::isThisProgramsFolder()
{
    QCOMPARE(QString::fromStdString(executableFolder()), QCoreApplication::applicationDirPath());
}

void TestExecutableFolder::hasNoBackslashAndNoTrailingSlash()
{
    const std::string folder = executableFolder();
    QVERIFY(folder.find('\\') == std::string::npos);
    QVERIFY(!folder.ends_with('/'));
}

void TestExecutableFolder::keepsBlanksAndNonAsciiLetters()
{
    const QTemporaryDir root;
    const QString folder = QDir(root.path()).canonicalPath() + QStringLiteral("/Prüf ung-スピ");
    QCOMPARE(folderOfACopyIn(folder), folder);
}

QTEST_GUILESS_MAIN(TestExecutableFolder)
#include "tst_executable_folder.moc"
