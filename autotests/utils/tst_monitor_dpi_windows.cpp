// SPDX-License-Identifier: Apache-2.0
#include "utils/screen_sources.h"

#include "contract/sal.h"

#include <QTest>

#include <windows.h>

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
    QVERIFY(monitorDpi().has_value());
}

QTEST_GUILESS_MAIN(TestMonitorDpiWindows)
#include "tst_monitor_dpi_windows.moc"
