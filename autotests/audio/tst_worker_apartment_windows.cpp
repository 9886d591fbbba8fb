// SPDX-License-Identifier: Apache-2.0
#include "audio/player_helper.h"
#include "audio/recorder_helper.h"
#include "autotests/support/fake_sdl.h"

#include <QObject>
#include <QTest>

#include <windows.h>

#include <objbase.h>

#include <thread>

using namespace ostra::audio;

namespace {

// What the system says of the calling thread: "none", "single", "multi", or "borrowed" for a thread that lives on another
// thread's apartment.
std::string apartment()
{
    APTTYPE type{};
    APTTYPEQUALIFIER qualifier{};
    if (FAILED(CoGetApartmentType(&type, &qualifier)))
        return "none";
    if (type != APTTYPE_MTA)
        return "single";
    return qualifier == APTTYPEQUALIFIER_IMPLICIT_MTA ? "borrowed" : "multi";
}

StopFlag clearedFlag() { return std::make_shared<std::atomic<bool>>(false); }

} // namespace

class TestWorkerApartment : public QObject {
    Q_OBJECT

private slots:
    void holdsFromTheOpeningToTheClosing_data();
    void holdsFromTheOpeningToTheClosing();
    void endsWithTheWorker();
    void isEnteredOnceForTwoJobs();
    void leavesAnotherKindOfApartmentAlone();
    void isNotEndedOnAnotherThread();
};

void TestWorkerApartment::holdsFromTheOpeningToTheClosing_data()
{
    QTest::addColumn<bool>("records");
    QTest::newRow("recorder") << true;
    QTest::newRow("player") << false;
}

void TestWorkerApartment::holdsFromTheOpeningToTheClosing()
{
    QFETCH(const bool, records);
    FakeSdl fake;
    fake.tracksStatus = true;
    std::vector<std::string> seen;
    fake.onCall = [&seen](const std::string &call) {
        if (call.starts_with("open") || call.starts_with("close"))
            seen.push_back(call.substr(0, 5) + ' ' + apartment());
    };
    std::thread([records] {
        RecorderHelper recorder(std::make_shared<RecordingSlot>(), clearedFlag(), QStringLiteral("Mic"), 0);
        PlayerHelper player(std::make_shared<AudioRecording>(), clearedFlag(), QStringLiteral("Speakers"));
        if (records)
            recorder.RecordAudio();
        else
            player.PlayAudio();
    }).join();
    QCOMPARE(seen, (std::vector<std::string>{"open  multi", "close multi"}));
}

void TestWorkerApartment::endsWithTheWorker()
{
    FakeSdl fake;
    std::string before;
    std::string after;
    std::thread([&] {
        before = apartment();
        RecorderHelper(std::make_shared<RecordingSlot>(), clearedFlag(), QStringLiteral("Mic"), 0).RecordAudio();
        after = apartment();
    }).join();
    QCOMPARE(before, std::string("none"));
    QCOMPARE(after, std::string("none"));
}

void TestWorkerApartment::isEnteredOnceForTwoJobs()
{
    FakeSdl fake;
    std::string after;
    std::thread([&after] {
        {
            PlayerHelper worker(std::make_shared<AudioRecording>(), clearedFlag(), QStringLiteral("Speakers"));
            worker.PlayAudio();
            worker.PlayAudio();
        }
        after = apartment();
    }).join();
    QCOMPARE(after, std::string("none"));
}

void TestWorkerApartment::leavesAnotherKindOfApartmentAlone()
{
    FakeSdl fake;
    std::string after;
    std::thread([&after] {
        const HRESULT entered = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        RecorderHelper(std::make_shared<RecordingSlot>(), clearedFlag(), QStringLiteral("Mic"), 0).RecordAudio();
        after = apartment();
        if (SUCCEEDED(entered))
            CoUninitialize();
    }).join();
    QCOMPARE(after, std::string("single"));
}

void TestWorkerApartment::isNotEndedOnAnotherThread()
{
    FakeSdl fake;
    const HRESULT entered = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    QVERIFY(SUCCEEDED(entered));
    auto worker = std::make_unique<PlayerHelper>(std::make_shared<AudioRecording>(), clearedFlag(), QStringLiteral("Speakers"));
    std::thread([&worker] { worker->PlayAudio(); }).join();
    worker.reset();
    const std::string after = apartment();
    CoUninitialize();
    QCOMPARE(after, std::string("single"));
}

QTEST_GUILESS_MAIN(TestWorkerApartment)
#include "tst_worker_apartment_windows.moc"
