// SPDX-License-Identifier: Apache-2.0
#include "utils/screen_sources.h"

#include "autotests/utils/ask_monitor_dpi.h"
#include "contract/sal.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <windows.h>

#include <string>

using ostra::utils::monitorDpi;

namespace {

/// The host's loader; it loads `library`, whatever is asked for.
class RecordingLoader final : public sal::ModuleLoader {
public:
    void *load(const std::string &fileName, std::uint32_t flag) override
    {
        askedName = fileName;
        askedFlag = flag;
        ++loadCount;
        return library == nullptr ? nullptr : LoadLibraryW(library);
    }
    void release(void *handle) override
    {
        ++releaseCount;
        FreeLibrary(static_cast<HMODULE>(handle));
    }

    const wchar_t *library = L"shcore.dll";
    std::string askedName;
    std::uint32_t askedFlag = 0;
    int loadCount = 0;
    int releaseCount = 0;
};

RecordingLoader *loader = nullptr;

/// shcore.dll of somebody else's making in `folder`, for as long as this lives.
class PlantedLibrary {
public:
    explicit PlantedLibrary(const QString &folder) : file_(folder + QStringLiteral("/shcore.dll"))
    {
        QFile::remove(file_); // of a run that was cut off
        isThere_ = QFile::copy(QCoreApplication::applicationDirPath() + QStringLiteral(PLANTED_LIBRARY_FILE), file_);
    }
    ~PlantedLibrary() { QFile::remove(file_); }
    PlantedLibrary(const PlantedLibrary &) = delete;
    PlantedLibrary &operator=(const PlantedLibrary &) = delete;

    bool isThere() const { return isThere_; }

private:
    QString file_;
    bool isThere_ = false;
};

int askInAProcessOfItsOwn(const QStringList &arguments = {})
{
    constexpr int limit = 30000; // ms
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral(ASKING_FOLDER "/ask_monitor_dpi.exe"), arguments);
    return process.waitForFinished(limit) && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

} // namespace

extern "C" {
sal::ModuleLoader *get_module() { return loader; }
sal::TemporaryPath *get_temporary_path() { return nullptr; }
}

class TestMonitorDpiWindows : public QObject {
    Q_OBJECT

private slots:
    void asksTheSystemsLibraryThroughTheHost();
    void toldNothingWithoutTheLibrary();
    void toldNothingByALibraryWithoutTheFunctions();
    void loadsTheLibraryItselfWithoutAHostsLoader();
    void withoutAHostsLoaderAPlantedLibraryIsNotLoaded();
};

void TestMonitorDpiWindows::asksTheSystemsLibraryThroughTheHost()
{
    RecordingLoader hosts;
    loader = &hosts;
    const auto dpi = monitorDpi();
    QVERIFY(dpi.has_value());
    QVERIFY(*dpi >= 96 && *dpi <= 960);
    QCOMPARE(hosts.askedName, std::string("shcore.dll"));
    QCOMPARE(hosts.askedFlag, 1U);
    QCOMPARE(hosts.loadCount, 1);
    QCOMPARE(hosts.releaseCount, 1);
}

void TestMonitorDpiWindows::toldNothingWithoutTheLibrary()
{
    RecordingLoader hosts;
    hosts.library = nullptr;
    loader = &hosts;
    QVERIFY(!monitorDpi().has_value());
    QCOMPARE(hosts.releaseCount, 0);
}

void TestMonitorDpiWindows::toldNothingByALibraryWithoutTheFunctions()
{
    RecordingLoader hosts;
    hosts.library = L"version.dll";
    loader = &hosts;
    QVERIFY(!monitorDpi().has_value());
    QCOMPARE(hosts.releaseCount, 1);
}

void TestMonitorDpiWindows::loadsTheLibraryItselfWithoutAHostsLoader()
{
    loader = nullptr;
    const auto dpi = monitorDpi();
    QVERIFY(dpi.has_value());
    QVERIFY(*dpi >= 96 && *dpi <= 960);
}

void TestMonitorDpiWindows::withoutAHostsLoaderAPlantedLibraryIsNotLoaded()
{
    const PlantedLibrary besideTheProgram(QCoreApplication::applicationDirPath() + QStringLiteral(ASKING_FOLDER));
    QVERIFY(besideTheProgram.isThere());
    QCOMPARE(askInAProcessOfItsOwn(), int{ask_monitor_dpi::told});
    const QString bare = QString::fromLatin1(ask_monitor_dpi::byBareName);
    QCOMPARE(askInAProcessOfItsOwn({bare}), int{ask_monitor_dpi::plantedRan}); // the trap was set
}

QTEST_GUILESS_MAIN(TestMonitorDpiWindows)
#include "tst_monitor_dpi_windows.moc"
