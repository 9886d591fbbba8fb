// SPDX-License-Identifier: Apache-2.0
// What the built module leaves in its host's process: nothing that runs, nothing that is shown.
#include "contract/exports.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <windows.h>

#include <objbase.h>
#include <tlhelp32.h>

#include <functional>
#include <string>
#include <vector>

using namespace ostra;

namespace {

std::vector<DWORD> threadIds()
{
    std::vector<DWORD> ids;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = Thread32First(snapshot, &entry); more != 0; more = Thread32Next(snapshot, &entry)) {
        if (entry.th32OwnerProcessID == GetCurrentProcessId())
            ids.push_back(entry.th32ThreadID);
    }
    CloseHandle(snapshot);
    return ids;
}

std::size_t windowCount()
{
    std::size_t count = 0;
    const auto countOne = [](HWND, LPARAM counter) -> BOOL {
        ++*reinterpret_cast<std::size_t *>(counter);
        return TRUE;
    };
    for (const DWORD id : threadIds())
        EnumThreadWindows(id, countOne, reinterpret_cast<LPARAM>(&count));
    return count;
}

} // namespace

class TestLibraryLeftovers : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void roundsLeaveNoThreadAndNoWindow();
    void theCodeStaysAndNothingMoreRuns();
    void comIsWhatItWasBefore();

private:
    template <typename Function>
    Function resolve(const char *name) const
    {
        return reinterpret_cast<Function>(reinterpret_cast<void *>(GetProcAddress(library_, name)));
    }
    void round() const;

    QTemporaryDir folder_;
    HMODULE library_ = nullptr;
    GetModuleInterfaceInstanceFunction *get_ = nullptr;
    ReleaseModuleInterfaceInstanceFunction *release_ = nullptr;
};

void TestLibraryLeftovers::initTestCase()
{
    QVERIFY(QDir::setCurrent(folder_.path()));
    const QString path =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../../../bundle/" MODULE_NAME));
    library_ = LoadLibraryW(QDir::toNativeSeparators(path).toStdWString().c_str());
    QVERIFY(library_ != nullptr);
    get_ = resolve<GetModuleInterfaceInstanceFunction *>(exports::getModuleInterfaceInstance);
    release_ = resolve<ReleaseModuleInterfaceInstanceFunction *>(exports::releaseModuleInterfaceInstance);
    QVERIFY(get_ != nullptr && release_ != nullptr);
}

void TestLibraryLeftovers::round() const
{
    get_()->componentManager()->refresh();
    release_();
}

// The first round starts what the system and its sound drivers keep for the process.
void TestLibraryLeftovers::roundsLeaveNoThreadAndNoWindow()
{
    round();
    const std::size_t threads = threadIds().size();
    const std::size_t windows = windowCount();
    for (int turn = 0; turn < 5; ++turn)
        round();
    qInfo("%zu threads and %zu windows before, %zu and %zu after", threads, windows, threadIds().size(), windowCount());
    QTRY_VERIFY(threadIds().size() <= threads);
    QVERIFY(windowCount() <= windows);
}

// Where threads start tells nothing about whose they are: in the compiler's run time. So they are counted.
void TestLibraryLeftovers::theCodeStaysAndNothingMoreRuns()
{
    const std::size_t threads = threadIds().size();
    FreeLibrary(library_);
    QVERIFY(threadIds().size() <= threads);
    round(); // pinned: its code is still there
    QTRY_VERIFY(threadIds().size() <= threads);
}

// A reference too few would end the host's apartment, one too many would keep it.
void TestLibraryLeftovers::comIsWhatItWasBefore()
{
    APTTYPE type{};
    APTTYPEQUALIFIER qualifier{};
    QCOMPARE(CoGetApartmentType(&type, &qualifier), CO_E_NOTINITIALIZED);
    QVERIFY(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
    round();
    QCOMPARE(CoGetApartmentType(&type, &qualifier), S_OK);
    CoUninitialize();
    QCOMPARE(CoGetApartmentType(&type, &qualifier), CO_E_NOTINITIALIZED);
}

QTEST_GUILESS_MAIN(TestLibraryLeftovers)
#include "tst_library_leftovers.moc"
