// SPDX-License-Identifier: Apache-2.0
#include "audio/endpoints/endpoint_volume.h"

#include "autotests/support/fake_core_audio_windows.h"

#include <QObject>
#include <QTest>

#include <objbase.h>

#include <algorithm>
#include <optional>

using namespace ostra::audio;
using fake_core_audio::Call;
using fake_core_audio::Endpoint;
using fake_core_audio::Event;
using fake_core_audio::FakeCoreAudio;

namespace {

const std::vector<Endpoint> before{{L"one", 0.1F, false}, {L"two", 0.2F, true}, {L"three", 0.3F, false}};

const EndpointVolumes raised(3, EndpointVolume{1.0F, false, {}, {}});
const EndpointVolumes byId{{0.9F, true, u"three", {}}, {0.7F, true, u"one", {}}, {0.8F, false, u"two", {}}};

void addAll(FakeCoreAudio &fake, const std::vector<Endpoint> &endpoints)
{
    for (const Endpoint &endpoint : endpoints)
        fake.add(endpoint.id, endpoint.level, endpoint.muted);
}

// What every pass owes to COM, however it ended.
void verifyEverythingGivenBack(const FakeCoreAudio &fake)
{
    QCOMPARE(fake.referenceCount(), 0);
    QCOMPARE(fake.outstandingIdCount(), std::size_t{0});
    QCOMPARE(fake.openApartmentCount(), 0);
    QCOMPARE(fake.referencesAtLeaving(), 0);
    QCOMPARE(fake.complaints(), std::vector<std::string>());
}

// One row for each call that the undisturbed pass makes.
void addRowForEachCall(const std::vector<Event> &events)
{
    QTest::addColumn<int>("failingCall");
    for (std::size_t i = 0; i < events.size(); ++i)
        QTest::addRow("call %d: %s of endpoint %d", static_cast<int>(i), fake_core_audio::nameOf(events[i].call),
                      static_cast<int>(events[i].endpoint))
            << static_cast<int>(i);
}

// The records that a reading pass has appended when the last call of `events` fails.
std::size_t recordCountAfter(const std::vector<Event> &events)
{
    const auto isRead = [](const Event &event) { return event.call == Call::getId; };
    return static_cast<std::size_t>(std::ranges::count_if(events, isRead));
}

// The states that an applying pass leaves behind: what each set call before the failing one has done.
std::vector<Endpoint> statesAfter(const std::vector<Event> &events, const std::vector<Endpoint> &wanted)
{
    std::vector<Endpoint> states = before;
    for (std::size_t i = 0; i + 1 < events.size(); ++i) {
        Endpoint &endpoint = states[events[i].endpoint];
        if (events[i].call == Call::setLevel)
            endpoint.level = wanted[events[i].endpoint].level;
        if (events[i].call == Call::setMute)
            endpoint.muted = wanted[events[i].endpoint].muted;
    }
    return states;
}

} // namespace

class TestEndpointPassesWindows : public QObject {
    Q_OBJECT

private slots:
    void readsLevelMuteAndId();
    void readingMakesTheseCalls();
    void applyingMakesTheseCalls();
    void readsNothingWithoutEndpoints();
    void readingSurvivesAFailureOf_data();
    void readingSurvivesAFailureOf();
    void raisingSurvivesAFailureOf_data();
    void raisingSurvivesAFailureOf();
    void restoringSurvivesAFailureOf_data();
    void restoringSurvivesAFailureOf();
    void keepsAtMost255UnitsOfAnId_data();
    void keepsAtMost255UnitsOfAnId();
    void endsAtAnEndpointWithoutId();
    void endsBeyondTheListWithoutIds();
    void stayInAnApartmentIsBalanced();
};

void TestEndpointPassesWindows::readsLevelMuteAndId()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    EndpointVolumes list;
    QCOMPARE(readEndpointVolumes(list), 0);
    QCOMPARE(list.size(), std::size_t{3});
    QCOMPARE(list[0].level, 0.1F);
    QVERIFY(!list[0].muted);
    QCOMPARE(list[1].level, 0.2F);
    QVERIFY(list[1].muted);
    QCOMPARE(list[2].id, std::u16string(u"three"));
    QVERIFY(list[2].channelVolumes.empty());
    QCOMPARE(fake.states(), before);
    verifyEverythingGivenBack(fake);
}

void TestEndpointPassesWindows::readingMakesTheseCalls()
{
    FakeCoreAudio fake;
    fake.add(L"one", 0.1F, false);
    EndpointVolumes list;
    QCOMPARE(readEndpointVolumes(list), 0);
    QCOMPARE(fake.calls(), (std::vector<Call>{Call::createEnumerator, Call::enumAudioEndpoints, Call::getCount, Call::item,
                                              Call::activate, Call::getLevel, Call::getMute, Call::getId}));
}

void TestEndpointPassesWindows::applyingMakesTheseCalls()
{
    FakeCoreAudio fake;
    fake.add(L"one", 0.1F, true);
    fake.add(L"two", 0.1F, false);
    QCOMPARE(applyEndpointVolumes(raised), 0);
    QCOMPARE(fake.calls(),
             (std::vector<Call>{Call::createEnumerator, Call::enumAudioEndpoints, Call::getCount,          //
                                Call::item, Call::getId, Call::activate, Call::setLevel, Call::getMute,    //
                                Call::setMute,                                                             // differs
                                Call::item, Call::getId, Call::activate, Call::setLevel, Call::getMute})); // does not
    verifyEverythingGivenBack(fake);
}

void TestEndpointPassesWindows::readsNothingWithoutEndpoints()
{
    FakeCoreAudio fake;
    EndpointVolumes list;
    QCOMPARE(readEndpointVolumes(list), 0);
    QVERIFY(list.empty());
    QCOMPARE(applyEndpointVolumes(list), 0);
    verifyEverythingGivenBack(fake);
}

void TestEndpointPassesWindows::readingSurvivesAFailureOf_data()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    EndpointVolumes list;
    QCOMPARE(readEndpointVolumes(list), 0);
    addRowForEachCall(fake.events);
}

void TestEndpointPassesWindows::readingSurvivesAFailureOf()
{
    QFETCH(const int, failingCall);
    FakeCoreAudio fake;
    addAll(fake, before);
    fake.failAt(static_cast<std::size_t>(failingCall));
    EndpointVolumes list;
    const int result = readEndpointVolumes(list);
    verifyEverythingGivenBack(fake);
    QCOMPARE(fake.states(), before);
    const Event failed = fake.events.at(static_cast<std::size_t>(failingCall));
    if (failed.call == Call::getId) { // the record then goes by its position
        QCOMPARE(result, 0);
        QCOMPARE(list.size(), before.size());
        QVERIFY(list[failed.endpoint].id.empty());
        return;
    }
    QCOMPARE(result, 1);
    QCOMPARE(fake.events.back(), failed); // the end at once
    QCOMPARE(list.size(), recordCountAfter(fake.events));
}

void TestEndpointPassesWindows::raisingSurvivesAFailureOf_data()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    QCOMPARE(applyEndpointVolumes(raised), 0);
    addRowForEachCall(fake.events);
}

void TestEndpointPassesWindows::raisingSurvivesAFailureOf()
{
    QFETCH(const int, failingCall);
    FakeCoreAudio fake;
    addAll(fake, before);
    fake.failAt(static_cast<std::size_t>(failingCall));
    QCOMPARE(applyEndpointVolumes(raised), 1);
    verifyEverythingGivenBack(fake);
    QCOMPARE(fake.events.size(), static_cast<std::size_t>(failingCall) + 1);
    QCOMPARE(fake.states(), statesAfter(fake.events, {{L"one", 1.0F, false}, {L"two", 1.0F, false}, {L"three", 1.0F, false}}));
}

void TestEndpointPassesWindows::restoringSurvivesAFailureOf_data()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    QCOMPARE(applyEndpointVolumes(byId), 0);
    QCOMPARE(fake.states(), (std::vector<Endpoint>{{L"one", 0.7F, true}, {L"two", 0.8F, false}, {L"three", 0.9F, true}}));
    addRowForEachCall(fake.events);
}

void TestEndpointPassesWindows::restoringSurvivesAFailureOf()
{
    QFETCH(const int, failingCall);
    FakeCoreAudio fake;
    addAll(fake, before);
    fake.failAt(static_cast<std::size_t>(failingCall));
    QCOMPARE(applyEndpointVolumes(byId), 1);
    verifyEverythingGivenBack(fake);
    QCOMPARE(fake.events.size(), static_cast<std::size_t>(failingCall) + 1);
    QCOMPARE(fake.states(), statesAfter(fake.events, {{L"one", 0.7F, true}, {L"two", 0.8F, false}, {L"three", 0.9F, true}}));
}

void TestEndpointPassesWindows::keepsAtMost255UnitsOfAnId_data()
{
    QTest::addColumn<int>("unitCount");
    QTest::addColumn<int>("keptCount");
    QTest::addColumn<int>("restoreResult");

    QTest::newRow("1") << 1 << 1 << 0;
    QTest::newRow("255") << 255 << 255 << 0;
    QTest::newRow("256") << 256 << 255 << 1; // cut, so it is nobody's id any more
    QTest::newRow("300") << 300 << 255 << 1;
    QTest::newRow("100 000") << 100000 << 255 << 1;
}

void TestEndpointPassesWindows::keepsAtMost255UnitsOfAnId()
{
    QFETCH(const int, unitCount);
    QFETCH(const int, restoreResult);
    FakeCoreAudio fake;
    fake.add(std::wstring(static_cast<std::size_t>(unitCount), L'\x30b9'), 0.4F, false);
    EndpointVolumes list;
    QCOMPARE(readEndpointVolumes(list), 0);
    QTEST(static_cast<int>(list[0].id.size()), "keptCount");
    QCOMPARE(list[0].id.back(), u'\x30b9');
    fake.endpoints[0]->level = 1.0F;
    QCOMPARE(applyEndpointVolumes(list), restoreResult);
    QCOMPARE(fake.endpoints[0]->level, restoreResult == 0 ? 0.4F : 1.0F);
    verifyEverythingGivenBack(fake);
}

void TestEndpointPassesWindows::endsAtAnEndpointWithoutId()
{
    FakeCoreAudio fake;
    fake.add(L"one", 0.1F, false);
    fake.add(std::nullopt, 0.2F, false);
    fake.add(L"three", 0.3F, false);
    EndpointVolumes list;
    QCOMPARE(readEndpointVolumes(list), 0); // reading takes it: it has a position
    QCOMPARE(list.size(), std::size_t{3});
    QVERIFY(list[1].id.empty());
    QCOMPARE(applyEndpointVolumes(raised), 1);
    QCOMPARE(fake.states(),
             (std::vector<Endpoint>{{L"one", 1.0F, false}, {std::nullopt, 0.2F, false}, {L"three", 0.3F, false}}));
    verifyEverythingGivenBack(fake);
}

void TestEndpointPassesWindows::endsBeyondTheListWithoutIds()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    fake.add(L"plugged in just now", 0.5F, true);
    QCOMPARE(applyEndpointVolumes(raised), 1);
    QCOMPARE(fake.states(),
             (std::vector<Endpoint>{
                 {L"one", 1.0F, false}, {L"two", 1.0F, false}, {L"three", 1.0F, false}, {L"plugged in just now", 0.5F, true}}));
    verifyEverythingGivenBack(fake);
}

// The thread lives in a single-threaded apartment already, as a user interface's thread does.
void TestEndpointPassesWindows::stayInAnApartmentIsBalanced()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    for (int i = 0; i < 3; ++i) {
        EndpointVolumes list;
        QCOMPARE(readEndpointVolumes(list), 0);
        QCOMPARE(list.size(), before.size()); // the class object is still registered: the apartment was never left
    }
    QCOMPARE(CoInitialize(nullptr), S_FALSE);
    CoUninitialize();
    verifyEverythingGivenBack(fake);
}

QTEST_GUILESS_MAIN(TestEndpointPassesWindows)
#include "tst_endpoint_passes_windows.moc"
