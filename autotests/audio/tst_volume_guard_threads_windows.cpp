// SPDX-License-Identifier: Apache-2.0
// The real device enumerator with at least one endpoint, on threads that came to COM in different ways. Wine cannot set levels,
// so here the guard shows its failures.
#include "audio/endpoints/endpoint_volume.h"
#include "audio/volume_guard.h"

#include <QObject>
#include <QTest>

#include <windows.h>

#include <objbase.h>

#include <optional>
#include <thread>

using namespace ostra::audio;

namespace {

// What a thread's COM is like: nullopt without an apartment.
std::optional<APTTYPE> apartment()
{
    APTTYPE type = APTTYPE_CURRENT;
    APTTYPEQUALIFIER qualifier = APTTYPEQUALIFIER_NONE;
    const HRESULT result = CoGetApartmentType(&type, &qualifier);
    // A thread that never entered one takes part in the process's multithreaded apartment, if there is one.
    if (FAILED(result) || qualifier == APTTYPEQUALIFIER_IMPLICIT_MTA)
        return std::nullopt;
    return type;
}

struct Report {
    HRESULT entered = E_FAIL;
    std::optional<APTTYPE> apartmentBefore;
    int readResult = -1;
    std::size_t endpointCount = 0;
    bool setFailed = false;
    bool restoreFailed = false;
    bool reapplyFailed = true;
    std::optional<APTTYPE> apartmentAfter;
    HRESULT enteredAgain = E_FAIL;
};

void useGuard(Report &report)
{
    EndpointVolumes list;
    report.readResult = readEndpointVolumes(list);
    report.endpointCount = list.size();
    const VolumeGuard guard = makeVolumeGuard(100);
    report.setFailed = guard->setVolume(100);
    report.restoreFailed = guard->restoreVolume();
    report.reapplyFailed = guard->reapplyCurrentVolume();
}

// A thread that enters the apartment of `kind`, or none at all.
Report onThread(std::optional<DWORD> kind)
{
    Report report;
    std::thread([&report, kind] {
        if (kind)
            report.entered = CoInitializeEx(nullptr, *kind);
        report.apartmentBefore = apartment();
        useGuard(report);
        report.apartmentAfter = apartment();
        report.enteredAgain = CoInitializeEx(nullptr, kind.value_or(COINIT_MULTITHREADED));
        CoUninitialize();
        if (kind)
            CoUninitialize();
    }).join();
    return report;
}

// Reading works; setting a level is refused, so the raise and the restore fail. Without a save the restore would succeed.
void verifyUse(const Report &report)
{
    QCOMPARE(report.readResult, 0);
    QVERIFY(report.endpointCount > 0);
    QVERIFY(report.setFailed);
    QVERIFY(report.restoreFailed);
    QVERIFY(!report.reapplyFailed);
}

} // namespace

class TestVolumeGuardThreadsWindows : public QObject {
    Q_OBJECT

private slots:
    void worksInTheMultithreadedApartment();
    void worksInASingleThreadedApartment();
    void worksOnAThreadWithoutApartment();
};

void TestVolumeGuardThreadsWindows::worksInTheMultithreadedApartment()
{
    const Report report = onThread(COINIT_MULTITHREADED);
    QCOMPARE(report.entered, S_OK);
    QVERIFY(report.apartmentBefore == APTTYPE_MTA);
    verifyUse(report);
    QVERIFY(report.apartmentAfter == APTTYPE_MTA);
    QCOMPARE(report.enteredAgain, S_FALSE); // as a thread that is still in it
}

void TestVolumeGuardThreadsWindows::worksInASingleThreadedApartment()
{
    const Report report = onThread(COINIT_APARTMENTTHREADED);
    QCOMPARE(report.entered, S_OK);
    verifyUse(report);
    QVERIFY(report.apartmentAfter == report.apartmentBefore);
    QCOMPARE(report.enteredAgain, S_FALSE);
}

void TestVolumeGuardThreadsWindows::worksOnAThreadWithoutApartment()
{
    const Report report = onThread(std::nullopt);
    QVERIFY(!report.apartmentBefore);
    verifyUse(report);
    QVERIFY(!report.apartmentAfter);
    QCOMPARE(report.enteredAgain, S_OK); // as a thread that is in none
}

QTEST_GUILESS_MAIN(TestVolumeGuardThreadsWindows)
#include "tst_volume_guard_threads_windows.moc"
