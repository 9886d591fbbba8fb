// SPDX-License-Identifier: Apache-2.0
// A library of a system library's name lies beside the program and in the current folder; whoever loads it sets a mark.
#include "utils/screen_sources.h"
#if PLANTED_WITHOUT_HOST_LOADER
#include "autotests/support/fake_sal.h"
#endif

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <windows.h>

using namespace ostra::utils;

namespace {

bool hasPlantedLibraryRun() { return GetEnvironmentVariableW(L"PLANTED_LIBRARY", nullptr, 0) > 0; }

} // namespace

class TestPlantedLibraries : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void dpiComesFromTheSystemsLibrary();
    void theTrapIsSet();

private:
    QTemporaryDir current_;
    QString before_ = QDir::currentPath();
};

void TestPlantedLibraries::initTestCase()
{
#if PLANTED_WITHOUT_HOST_LOADER
    fake_sal::state().hasModuleLoader = false;
#endif
    const QString planted = QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("shcore.dll"));
    QVERIFY(QFile::exists(planted));
    QVERIFY(QFile::copy(planted, current_.filePath(QStringLiteral("shcore.dll"))));
    QVERIFY(QDir::setCurrent(current_.path()));
}

void TestPlantedLibraries::cleanupTestCase() { QDir::setCurrent(before_); }

void TestPlantedLibraries::dpiComesFromTheSystemsLibrary()
{
    SetEnvironmentVariableW(L"PLANTED_LIBRARY", nullptr);
    const auto dpi = monitorDpi();
    QVERIFY(!hasPlantedLibraryRun());
    QVERIFY(dpi && *dpi >= 96);
}

void TestPlantedLibraries::theTrapIsSet()
{
    const HMODULE handle = LoadLibraryW(L"shcore.dll");
    QVERIFY(handle != nullptr);
    QVERIFY(hasPlantedLibraryRun());
    FreeLibrary(handle);
}

QTEST_GUILESS_MAIN(TestPlantedLibraries)
#include "tst_planted_libraries.moc"
