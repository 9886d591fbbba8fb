// SPDX-License-Identifier: Apache-2.0
// Against a real sound server whose devices the test makes; the server's own tool tells what the volumes are.
#include "audio/volume_guard.h"

#include "audio/endpoints/endpoint_volume.h"
#include "autotests/support/pulse_truth_linux.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTest>

#include <limits>
#include <stdexcept>

using namespace ostra::audio;
using pulse_truth::Device;
using pulse_truth::Devices;

namespace {

constexpr unsigned full = 65536;
const QString sinkKind = QStringLiteral("sink");
const QString sourceKind = QStringLiteral("source");

const Devices before{{"speakers", {{16384, 16384}, false}},
                     {"speakers.monitor", {{30000, 30000}, true}}, // no endpoint
                     {"headset", {{0, 0}, true}},
                     {"headset.monitor", {{full, full}, false}},
                     {"hdmi", {{20000, 60000}, false}}, // out of balance
                     {"hdmi.monitor", {{full, full}, false}},
                     {"microphone", {{91750, 91750}, false}}, // 140 %
                     {"line_in", {{50463, 50463}, true}}};

bool isMonitor(const std::string &name) { return name.ends_with(".monitor"); }

Devices allAt(unsigned volume)
{
    Devices devices = before;
    for (auto &[name, device] : devices) {
        if (!isMonitor(name))
            device = {{volume, volume}, false};
    }
    return devices;
}

// Compares with a report of which device differs.
void verifyDevices(const Devices &expected)
{
    const Devices actual = pulse_truth::devices();
    QCOMPARE(actual.size(), expected.size());
    for (const auto &[name, device] : expected) {
        QVERIFY2(actual.contains(name), name.c_str());
        QVERIFY2(actual.at(name).volumes == device.volumes, name.c_str());
        QVERIFY2(actual.at(name).muted == device.muted, name.c_str());
    }
}

void setAsBefore(const QString &kind, const char *name)
{
    const Device &device = before.at(name);
    pulse_truth::set(kind, QLatin1String(name), device.volumes, device.muted);
}

void verifyWithin(const QElapsedTimer &timer, std::chrono::milliseconds bound)
{
    QVERIFY2(std::chrono::milliseconds(timer.elapsed()) < bound, qPrintable(QString::number(timer.elapsed())));
}

} // namespace

class TestVolumeGuardSound : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void raisesAndRestoresFiveEndpoints();
    void restoresByNameWhenTheOrderChanged();
    void restoreStopsAtAnAddedEndpoint();
    void raisingStopsAtAnAddedEndpoint();
    void passesOverAVanishedEndpoint();
    void restoresTheLevelOfADeviceWithOtherChannels();
    void clampsThePercentage_data();
    void clampsThePercentage();
    void unmutesForTheTestAndMutesAgain();
    void savesOnlyOnce();
    void succeedsWithoutEndpoints();
    void restoresOnAnException();
    void plainDestructionDoesNotRestore();
    void reapplyChangesNothing();
    void staysSilentWithoutServer();
    void staysSilentWhenTheServerIsLost();
    void endsInTimeWhenTheServerIsFrozen();
};

void TestVolumeGuardSound::init()
{
    pulse_truth::addSink(QStringLiteral("speakers"));
    pulse_truth::addSink(QStringLiteral("headset"));
    pulse_truth::addSink(QStringLiteral("hdmi"));
    pulse_truth::addSource(QStringLiteral("microphone"));
    pulse_truth::addSource(QStringLiteral("line_in"));
    for (const char *name : {"speakers", "headset", "hdmi"})
        setAsBefore(sinkKind, name);
    for (const char *name : {"speakers.monitor", "microphone", "line_in"})
        setAsBefore(sourceKind, name);
    verifyDevices(before);
}

void TestVolumeGuardSound::cleanup()
{
    for (const auto &[name, device] : pulse_truth::devices()) {
        if (!isMonitor(name))
            pulse_truth::remove(QString::fromStdString(name));
    }
}

void TestVolumeGuardSound::raisesAndRestoresFiveEndpoints()
{
    VolumeGuard guard = makeVolumeGuard(100);
    verifyDevices(allAt(full));
    QVERIFY(!guard->restoreVolume());
    verifyDevices(before); // balance and the level above 100 % included
    QVERIFY(!guard->setVolume(100));
    verifyDevices(allAt(full));
    guard.reset();
    verifyDevices(before);
}

void TestVolumeGuardSound::restoresByNameWhenTheOrderChanged()
{
    VolumeGuard guard = makeVolumeGuard(100);
    pulse_truth::remove(QStringLiteral("speakers")); // comes back as the last sink, with a volume of the server's choice
    pulse_truth::addSink(QStringLiteral("speakers"));
    setAsBefore(sourceKind, "speakers.monitor");
    pulse_truth::remove(QStringLiteral("microphone"));
    pulse_truth::addSource(QStringLiteral("microphone"));
    EndpointVolumes now;
    QCOMPARE(readEndpointVolumes(now), 0);
    QCOMPARE(now[2].id, std::u16string(u"speakers"));
    QCOMPARE(now[4].id, std::u16string(u"microphone"));
    QVERIFY(!guard->restoreVolume());
    verifyDevices(before);
}

void TestVolumeGuardSound::restoreStopsAtAnAddedEndpoint()
{
    VolumeGuard guard = makeVolumeGuard(100);
    pulse_truth::addSink(QStringLiteral("just_plugged_in"));
    pulse_truth::set(sinkKind, QStringLiteral("just_plugged_in"), {10000, 10000}, true);
    QVERIFY(guard->restoreVolume());
    Devices expected = before; // the sinks before it are restored, the sources after it are not
    expected["just_plugged_in"] = {{10000, 10000}, true};
    expected["just_plugged_in.monitor"] = {{full, full}, false};
    expected["microphone"] = expected["line_in"] = {{full, full}, false};
    verifyDevices(expected);
}

void TestVolumeGuardSound::raisingStopsAtAnAddedEndpoint()
{
    VolumeGuard guard = makeVolumeGuard(0);
    pulse_truth::addSource(QStringLiteral("just_plugged_in"));
    pulse_truth::set(sourceKind, QStringLiteral("just_plugged_in"), {10000, 10000}, true);
    QVERIFY(guard->setVolume(100));
    Devices expected = allAt(full);
    expected["just_plugged_in"] = {{10000, 10000}, true};
    verifyDevices(expected);
}

void TestVolumeGuardSound::passesOverAVanishedEndpoint()
{
    VolumeGuard guard = makeVolumeGuard(100);
    pulse_truth::remove(QStringLiteral("speakers"));
    pulse_truth::remove(QStringLiteral("line_in"));
    QVERIFY(!guard->restoreVolume());
    Devices expected = before;
    for (const char *name : {"speakers", "speakers.monitor", "line_in"})
        expected.erase(name);
    verifyDevices(expected);
}

void TestVolumeGuardSound::restoresTheLevelOfADeviceWithOtherChannels()
{
    VolumeGuard guard = makeVolumeGuard(100);
    pulse_truth::remove(QStringLiteral("hdmi"));
    pulse_truth::addSink(QStringLiteral("hdmi"), 6);
    QVERIFY(!guard->restoreVolume());
    QCOMPARE(pulse_truth::devices()["hdmi"], (Device{std::vector<unsigned>(6, 60000), false}));
}

void TestVolumeGuardSound::clampsThePercentage_data()
{
    QTest::addColumn<int>("percent");
    QTest::addColumn<unsigned>("volume");

    QTest::newRow("-5") << -5 << 0U;
    QTest::newRow("lowest number") << std::numeric_limits<int>::min() << 0U;
    QTest::newRow("33") << 33 << 21627U;
    QTest::newRow("100") << 100 << full;
    QTest::newRow("250") << 250 << full;
    QTest::newRow("highest number") << std::numeric_limits<int>::max() << full;
}

void TestVolumeGuardSound::clampsThePercentage()
{
    QFETCH(const int, percent);
    QFETCH(const unsigned, volume);
    const VolumeGuard guard = makeVolumeGuard(50);
    QVERIFY(!guard->setVolume(percent));
    verifyDevices(allAt(volume));
}

void TestVolumeGuardSound::unmutesForTheTestAndMutesAgain()
{
    VolumeGuard guard = makeVolumeGuard(100);
    QVERIFY(!pulse_truth::devices()["headset"].muted);
    QVERIFY(!pulse_truth::devices()["line_in"].muted);
    guard.reset();
    QVERIFY(pulse_truth::devices()["headset"].muted);
    QVERIFY(pulse_truth::devices()["line_in"].muted);
}

void TestVolumeGuardSound::savesOnlyOnce()
{
    VolumeGuard guard = makeVolumeGuard(100);
    QVERIFY(!guard->setVolume(50));
    verifyDevices(allAt(full / 2));
    guard.reset();
    verifyDevices(before);
}

void TestVolumeGuardSound::succeedsWithoutEndpoints()
{
    cleanup();
    const VolumeGuard guard = makeVolumeGuard(100);
    QVERIFY(!guard->setVolume(100));
    QVERIFY(!guard->restoreVolume());
    QVERIFY(guard->reapplyCurrentVolume());
}

void TestVolumeGuardSound::restoresOnAnException()
{
    const auto runTest = [] {
        const VolumeGuard guard = makeVolumeGuard(100);
        verifyDevices(allAt(full));
        throw std::runtime_error("the test broke");
    };
    QVERIFY_EXCEPTION_THROWN(runTest(), std::runtime_error);
    verifyDevices(before);
}

void TestVolumeGuardSound::plainDestructionDoesNotRestore()
{
    delete makeVolumeGuard(100).release();
    verifyDevices(allAt(full));
}

void TestVolumeGuardSound::reapplyChangesNothing()
{
    const VolumeGuard guard = makeVolumeGuard(100);
    guard->restoreVolume();
    QVERIFY(!guard->reapplyCurrentVolume());
    verifyDevices(before);
}

void TestVolumeGuardSound::staysSilentWithoutServer()
{
    const pulse_truth::OtherServer nowhere("unix:nowhere");
    QElapsedTimer timer;
    timer.start();
    VolumeGuard guard = makeVolumeGuard(100);
    QVERIFY(guard->setVolume(100));
    QVERIFY(!guard->restoreVolume()); // nothing was saved
    QVERIFY(guard->reapplyCurrentVolume());
    guard.reset();
    verifyWithin(timer, std::chrono::milliseconds(1000)); // refused at once, not timed out
}

void TestVolumeGuardSound::staysSilentWhenTheServerIsLost()
{
    VolumeGuard guard = makeVolumeGuard(100);
    {
        const pulse_truth::OtherServer nowhere("unix:nowhere");
        QVERIFY(guard->setVolume(100));
        QVERIFY(guard->restoreVolume());
    }
    guard.reset(); // and it is still known what to restore when it is back
    verifyDevices(before);
}

void TestVolumeGuardSound::endsInTimeWhenTheServerIsFrozen()
{
    VolumeGuard guard = makeVolumeGuard(100);
    QElapsedTimer timer;
    {
        const pulse_truth::FrozenServer frozen;
        timer.start();
        QVERIFY(guard->restoreVolume());
        verifyWithin(timer, 5 * passBound);
        timer.restart();
        makeVolumeGuard(100).reset(); // nothing is saved, so there is one pass only
        verifyWithin(timer, 5 * passBound);
    }
    guard.reset();
    verifyDevices(before);
}

QTEST_GUILESS_MAIN(TestVolumeGuardSound)
#include "tst_volume_guard_sound.moc"
