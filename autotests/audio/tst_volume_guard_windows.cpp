// SPDX-License-Identifier: Apache-2.0
#include "audio/volume_guard.h"

#include "autotests/support/fake_core_audio_windows.h"

#include <QObject>
#include <QTest>

#include <algorithm>
#include <limits>
#include <stdexcept>

using namespace ostra::audio;
using fake_core_audio::Call;
using fake_core_audio::Endpoint;
using fake_core_audio::Event;
using fake_core_audio::FakeCoreAudio;

namespace {

const std::vector<Endpoint> before{{L"speakers", 0.25F, false},
                                   {L"headset", 0.0F, true},
                                   {L"hdmi", 1.0F, false},
                                   {L"microphone", 0.123F, false},
                                   {L"line in", 0.77F, true}};

void addAll(FakeCoreAudio &fake, const std::vector<Endpoint> &endpoints)
{
    for (const Endpoint &endpoint : endpoints)
        fake.add(endpoint.id, endpoint.level, endpoint.muted);
}

std::vector<Endpoint> allAt(float level)
{
    std::vector<Endpoint> states = before;
    for (Endpoint &endpoint : states) {
        endpoint.level = level;
        endpoint.muted = false;
    }
    return states;
}

void verifyEverythingGivenBack(const FakeCoreAudio &fake)
{
    QCOMPARE(fake.referenceCount(), 0);
    QCOMPARE(fake.outstandingIdCount(), std::size_t{0});
    QCOMPARE(fake.openApartmentCount(), 0);
    QCOMPARE(fake.referencesAtLeaving(), 0);
    QCOMPARE(fake.complaints(), std::vector<std::string>());
}

// The first `count` endpoints as they were, the others still at full volume.
std::vector<Endpoint> restoredUpTo(std::size_t count)
{
    std::vector<Endpoint> states = allAt(1.0F);
    std::copy_n(before.begin(), count, states.begin());
    return states;
}

} // namespace

class TestVolumeGuardWindows : public QObject {
    Q_OBJECT

private slots:
    void raisesAndRestoresFiveEndpoints();
    void restoresByIdWhenTheOrderChanged();
    void restoreStopsAtAnAddedEndpoint();
    void raisingStopsAtAnAddedEndpoint();
    void passesOverAVanishedEndpoint();
    void clampsThePercentage_data();
    void clampsThePercentage();
    void unmutesForTheTestAndMutesAgain();
    void savesOnlyOnce();
    void keepsNothingWhenTheSaveFails();
    void succeedsWithoutEndpoints();
    void restoresWhatAFailedRaiseHasChanged();
    void restoresOnAnException();
    void plainDestructionDoesNotRestore();
    void reapplyTouchesEveryEndpoint();
    void reapplyFailsOnlyWhenNothingIsRead();
    void survivesAFailingCall_data();
    void survivesAFailingCall();
};

void TestVolumeGuardWindows::raisesAndRestoresFiveEndpoints()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    VolumeGuard guard = makeVolumeGuard(100);
    QCOMPARE(fake.states(), allAt(1.0F));
    QVERIFY(!guard->restoreVolume());
    QCOMPARE(fake.states(), before);
    QVERIFY(!guard->setVolume(100));
    QCOMPARE(fake.states(), allAt(1.0F));
    guard.reset();
    QCOMPARE(fake.states(), before);
    verifyEverythingGivenBack(fake);
}

void TestVolumeGuardWindows::restoresByIdWhenTheOrderChanged()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    VolumeGuard guard = makeVolumeGuard(100);
    std::ranges::reverse(fake.endpoints);
    std::swap(fake.endpoints[0], fake.endpoints[2]);
    QVERIFY(!guard->restoreVolume());
    QCOMPARE(fake.states(), (std::vector<Endpoint>{before[2], before[3], before[4], before[1], before[0]}));
    verifyEverythingGivenBack(fake);
}

void TestVolumeGuardWindows::restoreStopsAtAnAddedEndpoint()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    VolumeGuard guard = makeVolumeGuard(100);
    const Endpoint added{L"plugged in just now", 0.4F, true};
    std::ranges::reverse(fake.endpoints);
    fake.endpoints.insert(fake.endpoints.begin() + 2, std::make_shared<Endpoint>(added));
    QVERIFY(guard->restoreVolume());
    const std::vector<Endpoint> raised = allAt(1.0F);
    QCOMPARE(fake.states(), (std::vector<Endpoint>{before[4], before[3], added, raised[2], raised[1], raised[0]}));
    verifyEverythingGivenBack(fake);
}

void TestVolumeGuardWindows::raisingStopsAtAnAddedEndpoint()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    VolumeGuard guard = makeVolumeGuard(0);
    fake.add(L"plugged in just now", 0.4F, true);
    QVERIFY(guard->setVolume(100));
    std::vector<Endpoint> expected = allAt(1.0F);
    expected.push_back({L"plugged in just now", 0.4F, true});
    QCOMPARE(fake.states(), expected);
    verifyEverythingGivenBack(fake);
}

void TestVolumeGuardWindows::passesOverAVanishedEndpoint()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    VolumeGuard guard = makeVolumeGuard(100);
    fake.endpoints.erase(fake.endpoints.begin() + 1);
    QVERIFY(!guard->restoreVolume());
    QCOMPARE(fake.states(), (std::vector<Endpoint>{before[0], before[2], before[3], before[4]}));
}

void TestVolumeGuardWindows::clampsThePercentage_data()
{
    QTest::addColumn<int>("percent");
    QTest::addColumn<float>("level");

    QTest::newRow("-5") << -5 << 0.0F;
    QTest::newRow("lowest number") << std::numeric_limits<int>::min() << 0.0F;
    QTest::newRow("0") << 0 << 0.0F;
    QTest::newRow("33") << 33 << 0.33F;
    QTest::newRow("99") << 99 << 0.99F;
    QTest::newRow("100") << 100 << 1.0F;
    QTest::newRow("250") << 250 << 1.0F;
    QTest::newRow("highest number") << std::numeric_limits<int>::max() << 1.0F;
}

void TestVolumeGuardWindows::clampsThePercentage()
{
    QFETCH(const int, percent);
    QFETCH(const float, level);
    FakeCoreAudio fake;
    addAll(fake, before);
    const VolumeGuard guard = makeVolumeGuard(50);
    QVERIFY(!guard->setVolume(percent));
    QVERIFY(fake.states() == allAt(level)); // to the bit
}

void TestVolumeGuardWindows::unmutesForTheTestAndMutesAgain()
{
    FakeCoreAudio fake;
    fake.add(L"muted", 0.5F, true);
    VolumeGuard guard = makeVolumeGuard(100);
    QVERIFY(!fake.endpoints[0]->muted);
    guard.reset();
    QVERIFY(fake.endpoints[0]->muted);
}

void TestVolumeGuardWindows::savesOnlyOnce()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    VolumeGuard guard = makeVolumeGuard(100);
    fake.events.clear();
    QVERIFY(!guard->setVolume(60));
    QCOMPARE(std::ranges::count(fake.calls(), Call::getLevel), 0);
    QCOMPARE(fake.states(), allAt(0.6F));
    guard.reset();
    QCOMPARE(fake.states(), before);
}

void TestVolumeGuardWindows::keepsNothingWhenTheSaveFails()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    fake.failAt(10); // in the midst of the second endpoint
    VolumeGuard guard = makeVolumeGuard(100);
    QCOMPARE(fake.states(), before);
    fake.events.clear();
    QVERIFY(!guard->restoreVolume());
    QCOMPARE(fake.events, std::vector<Event>());

    fake.endpoints[0]->level = 0.9F; // the user, before the next attempt
    QVERIFY(!guard->setVolume(100));
    QCOMPARE(fake.states(), allAt(1.0F));
    guard.reset();
    QCOMPARE(fake.endpoints[0]->level, 0.9F);
    QCOMPARE(fake.endpoints[4]->level, before[4].level);
    verifyEverythingGivenBack(fake);
}

void TestVolumeGuardWindows::succeedsWithoutEndpoints()
{
    FakeCoreAudio fake;
    const VolumeGuard guard = makeVolumeGuard(100);
    QVERIFY(!guard->setVolume(100));
    QVERIFY(!guard->restoreVolume());
    QVERIFY(guard->reapplyCurrentVolume());
    verifyEverythingGivenBack(fake);
}

void TestVolumeGuardWindows::restoresWhatAFailedRaiseHasChanged()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    VolumeGuard guard = makeVolumeGuard(0);
    fake.failAt(3 + 2 * 5 + 3); // the level of the third endpoint: three calls of the pass, five for each endpoint
    QVERIFY(guard->setVolume(100));
    QCOMPARE(fake.events.back(), (Event{Call::setLevel, 2}));
    guard.reset();
    QCOMPARE(fake.states(), before);
    verifyEverythingGivenBack(fake);
}

void TestVolumeGuardWindows::restoresOnAnException()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    const auto runTest = [&fake] {
        const VolumeGuard guard = makeVolumeGuard(100);
        QCOMPARE(fake.states(), allAt(1.0F));
        throw std::runtime_error("the test broke");
    };
    QVERIFY_EXCEPTION_THROWN(runTest(), std::runtime_error);
    QCOMPARE(fake.states(), before);
    verifyEverythingGivenBack(fake);
}

void TestVolumeGuardWindows::plainDestructionDoesNotRestore()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    delete makeVolumeGuard(100).release();
    QCOMPARE(fake.states(), allAt(1.0F));
}

void TestVolumeGuardWindows::reapplyTouchesEveryEndpoint()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    VolumeGuard guard = makeVolumeGuard(100);
    guard->restoreVolume();
    fake.events.clear();
    QVERIFY(!guard->reapplyCurrentVolume());
    QCOMPARE(std::ranges::count(fake.calls(), Call::setLevel), 5);
    QCOMPARE(std::ranges::count(fake.calls(), Call::setMute), 0);
    QCOMPARE(fake.states(), before);
    verifyEverythingGivenBack(fake);
}

void TestVolumeGuardWindows::reapplyFailsOnlyWhenNothingIsRead()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    const VolumeGuard guard = makeVolumeGuard(100);
    fake.failAt(4); // Activate of the first endpoint
    QVERIFY(guard->reapplyCurrentVolume());
    fake.failAt(9); // and of the second one
    QVERIFY(!guard->reapplyCurrentVolume());
    verifyEverythingGivenBack(fake);
}

// One row for each call in the life of a guard.
void TestVolumeGuardWindows::survivesAFailingCall_data()
{
    FakeCoreAudio fake;
    addAll(fake, before);
    makeVolumeGuard(100).reset();
    QTest::addColumn<int>("failingCall");
    QTest::addColumn<int>("pass");
    int pass = -1;
    for (std::size_t i = 0; i < fake.events.size(); ++i) {
        const Event &event = fake.events[i];
        pass += event.call == Call::createEnumerator ? 1 : 0;
        QTest::addRow("pass %d, call %d: %s of endpoint %d", pass, static_cast<int>(i), fake_core_audio::nameOf(event.call),
                      static_cast<int>(event.endpoint))
            << static_cast<int>(i) << pass;
    }
    QCOMPARE(pass, 2);
}

void TestVolumeGuardWindows::survivesAFailingCall()
{
    QFETCH(const int, failingCall);
    QFETCH(const int, pass);
    FakeCoreAudio fake;
    addAll(fake, before);
    fake.failAt(static_cast<std::size_t>(failingCall));
    VolumeGuard guard = makeVolumeGuard(100);
    const bool isSaved = pass != 0 || fake.events.at(static_cast<std::size_t>(failingCall)).call == Call::getId;
    if (pass != 1)
        QCOMPARE(fake.states(), isSaved ? allAt(1.0F) : before);
    guard.reset();
    verifyEverythingGivenBack(fake);
    if (pass < 2) {
        QCOMPARE(fake.states(), before);
        return;
    }
    const Event failed = fake.events.back();
    std::vector<Endpoint> expected = restoredUpTo(failed.endpoint);
    if (failed.call == Call::getMute || failed.call == Call::setMute)
        expected[failed.endpoint].level = before[failed.endpoint].level;
    QCOMPARE(fake.states(), expected);
}

QTEST_GUILESS_MAIN(TestVolumeGuardWindows)
#include "tst_volume_guard_windows.moc"
