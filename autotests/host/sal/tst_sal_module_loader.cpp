// SPDX-License-Identifier: Apache-2.0
#include "contract/sal.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QObject>
#include <QString>
#include <QTemporaryDir>
#include <QTest>

#include <windows.h>

#include <array>
#include <string>

namespace {

constexpr std::uint32_t fromSystemFolder = 1;

QString fileOf(void *handle)
{
    std::array<wchar_t, MAX_PATH> path{};
    GetModuleFileNameW(static_cast<HMODULE>(handle), path.data(), MAX_PATH);
    return QString::fromWCharArray(path.data()).toLower();
}

QString systemFolder()
{
    std::array<wchar_t, MAX_PATH> path{};
    GetSystemDirectoryW(path.data(), MAX_PATH);
    return QString::fromWCharArray(path.data()).toLower();
}

bool hasPlantedLibraryRun() { return GetEnvironmentVariableW(L"PLANTED_LIBRARY", nullptr, 0) > 0; }

} // namespace

class TestSalModuleLoader : public QObject {
    Q_OBJECT

private slots:
    void init();
    void loadsFromTheSystemFolder_data();
    void loadsFromTheSystemFolder();
    void ignoresALibraryBesideTheProgram();
    void ignoresALibraryInTheCurrentFolder();
    void ignoresALoadedLibraryOfTheSameName();
    void releaseGivesTheHandleBack();

private:
    QString planted() const { return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("planted.dll")); }
};

void TestSalModuleLoader::init()
{
    SetEnvironmentVariableW(L"PLANTED_LIBRARY", nullptr);
    QVERIFY(!hasPlantedLibraryRun());
}

void TestSalModuleLoader::loadsFromTheSystemFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("already loaded") << QStringLiteral("kernel32.dll");
    QTest::newRow("not yet loaded") << QStringLiteral("shcore.dll");
    QTest::newRow("any case") << QStringLiteral("SHCORE.DLL");
}

void TestSalModuleLoader::loadsFromTheSystemFolder()
{
    QFETCH(QString, name);
    void *handle = get_module()->load(name.toStdString(), fromSystemFolder);
    QVERIFY(handle != nullptr);
    QCOMPARE(fileOf(handle), systemFolder() + QLatin1Char('\\') + name.toLower());
    get_module()->release(handle);
}

void TestSalModuleLoader::ignoresALibraryBesideTheProgram()
{
    QVERIFY(QFile::exists(planted()));
    QVERIFY(get_module()->load("planted.dll", fromSystemFolder) == nullptr);
    QVERIFY(!hasPlantedLibraryRun());

    // The same name is found there by an ordinary load: the trap was set.
    const HMODULE handle = LoadLibraryW(L"planted.dll");
    QVERIFY(handle != nullptr);
    QVERIFY(hasPlantedLibraryRun());
    FreeLibrary(handle);
}

void TestSalModuleLoader::ignoresALibraryInTheCurrentFolder()
{
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QVERIFY(QFile::copy(planted(), folder.filePath(QStringLiteral("elsewhere.dll"))));
    QVERIFY(QDir::setCurrent(folder.path()));
    void *handle = get_module()->load("elsewhere.dll", fromSystemFolder);
    const HMODULE ordinary = LoadLibraryW(L"elsewhere.dll");
    FreeLibrary(ordinary);
    QDir::setCurrent(before);
    QVERIFY(handle == nullptr);
    QVERIFY(ordinary != nullptr);
}

void TestSalModuleLoader::ignoresALoadedLibraryOfTheSameName()
{
    const QTemporaryDir folder;
    const QString impostor = folder.filePath(QStringLiteral("shcore.dll"));
    QVERIFY(QFile::copy(planted(), impostor));
    const HMODULE loaded = LoadLibraryW(QDir::toNativeSeparators(impostor).toStdWString().c_str());
    const bool hasImpostorRun = hasPlantedLibraryRun();
    void *handle = get_module()->load("shcore.dll", fromSystemFolder);
    const QString file = handle == nullptr ? QString() : fileOf(handle);
    get_module()->release(handle);
    FreeLibrary(loaded);
    QVERIFY(hasImpostorRun);
    QCOMPARE(file, systemFolder() + QStringLiteral("\\shcore.dll"));
}

void TestSalModuleLoader::releaseGivesTheHandleBack()
{
    const std::string name = "cabinet.dll"; // nothing in this process needs it
    QVERIFY(GetModuleHandleW(L"cabinet.dll") == nullptr);
    void *handle = get_module()->load(name, fromSystemFolder);
    QVERIFY(handle != nullptr);
    QVERIFY(GetModuleHandleW(L"cabinet.dll") != nullptr);
    get_module()->release(handle);
    QVERIFY(GetModuleHandleW(L"cabinet.dll") == nullptr);
}

QTEST_GUILESS_MAIN(TestSalModuleLoader)
#include "tst_sal_module_loader.moc"
