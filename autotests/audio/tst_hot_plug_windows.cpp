// SPDX-License-Identifier: Apache-2.0
// Devices that the system tells to be unplugged and to be there again, while they are used and while they are not. The sinks
// stay where they are: only the notices come from the test.
#include "audio/audio_component_manager.h"
#include "audio/audio_devices.h"
#include "audio/sound_driver.h"
#include "audio/worker_status.h"
#include "autotests/audio/sound_job.h"
#include "autotests/audio/tone.h"
#include "autotests/support/hot_plug_windows.h"

#include <SDL.h>

#include <QObject>
#include <QTest>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

using namespace ostra::audio;

namespace {

constexpr int bound = 15000;      // ms; a device in use is looked at every 500 ms
constexpr int runningTime = 1200; // ms; long enough for the device to have given or taken sound
constexpr const char *headset = "Headset";

std::vector<std::string> listedNames(AudioComponentManager &manager)
{
    manager.refresh();
    std::vector<std::string> names;
    for (std::uint32_t index = 0; index < manager.componentCount(); ++index)
        names.push_back(manager.componentAt(index)->name());
    return names;
}

std::vector<std::string> withoutHeadset(std::vector<std::string> names)
{
    std::erase(names, headset);
    return names;
}

} // namespace

class TestHotPlugWindows : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aDeviceUnpluggedIsListedNoMoreUntilItIsBack();
    void aMicrophoneUnpluggedIsConnectedNoMore();
    void aDeviceThatComesBackUnnoticedIsListedOnce();
    void aPlaybackEndsWithItsDevice();
    void aRecordingEndsWithItsDevice();
    void anotherDevicesLossEndsNothing();

private:
    std::unique_ptr<hot_plug::HotPlug> system_;
};

void TestHotPlugWindows::init()
{
    system_.reset();
    system_ = std::make_unique<hot_plug::HotPlug>();
    SDL_setenv("SDL_AUDIODRIVER", soundDriverName(), 1);
    QCOMPARE(SDL_InitSubSystem(SDL_INIT_AUDIO), 0);
    QVERIFY(system_->isHeard());
}

void TestHotPlugWindows::cleanup()
{
    SDL_Quit();
    QVERIFY(!system_->isHeard());
    QCOMPARE(system_->referenceCount(), 0L);
    system_.reset();
}

void TestHotPlugWindows::aDeviceUnpluggedIsListedNoMoreUntilItIsBack()
{
    AudioComponentManager manager({15, 0, 0});
    const std::vector<std::string> before = listedNames(manager);
    QCOMPARE(std::count(before.begin(), before.end(), headset), 1);
    QVERIFY(system_->unplug(L"Headset"));
    QVERIFY(listedNames(manager) == withoutHeadset(before));
    QVERIFY(!isAudioDeviceConnected(headset, false));
    QVERIFY(system_->plug(L"Headset"));
    std::vector<std::string> after = withoutHeadset(before);
    after.emplace_back(headset); // behind those that stayed
    QVERIFY(listedNames(manager) == after);
    QVERIFY(isAudioDeviceConnected(headset, false));
}

// Nobody lists the devices while it is gone: the sound library still holds its old name then and gives it another.
void TestHotPlugWindows::aDeviceThatComesBackUnnoticedIsListedOnce()
{
    AudioComponentManager manager({15, 0, 0});
    std::vector<std::string> expected = withoutHeadset(listedNames(manager));
    QVERIFY(system_->unplug(L"Headset"));
    QVERIFY(system_->plug(L"Headset"));
    expected.emplace_back("Headset (2)");
    QVERIFY(listedNames(manager) == expected);
    QVERIFY(!isAudioDeviceConnected(headset, false));
}

void TestHotPlugWindows::aMicrophoneUnpluggedIsConnectedNoMore()
{
    QVERIFY(isAudioDeviceConnected("Mic", true));
    QVERIFY(system_->unplug(L"Mic"));
    QVERIFY(!isAudioDeviceConnected("Mic", true));
    QVERIFY(system_->plug(L"Mic"));
    QVERIFY(isAudioDeviceConnected("Mic", true));
}

void TestHotPlugWindows::aPlaybackEndsWithItsDevice()
{
    PlayJob player(tone::make(440, 8), QLatin1String(headset));
    QVERIFY(!QTest::qWaitFor([&] { return player.status().has_value(); }, runningTime));
    QVERIFY(system_->unplug(L"Headset"));
    QTRY_VERIFY_WITH_TIMEOUT(player.status(), bound);
    QCOMPARE(player.status(), worker_status::disconnected);
    QTRY_VERIFY_WITH_TIMEOUT(player.isOver(), bound);
    QVERIFY(!isAudioDeviceConnected(headset, false));
    QVERIFY(system_->plug(L"Headset"));
    PlayJob again(tone::make(440, 8), QLatin1String(headset));
    QVERIFY(!QTest::qWaitFor([&] { return again.status().has_value(); }, runningTime));
    again.stop();
    QTRY_VERIFY_WITH_TIMEOUT(again.isOver(), bound);
    QCOMPARE(again.status(), worker_status::finished);
}

void TestHotPlugWindows::aRecordingEndsWithItsDevice()
{
    const auto slot = std::make_shared<RecordingSlot>();
    RecordJob recorder(slot, QStringLiteral("Mic"), 5);
    QVERIFY(!QTest::qWaitFor([&] { return recorder.status().has_value(); }, runningTime));
    QVERIFY(system_->unplug(L"Mic"));
    QTRY_VERIFY_WITH_TIMEOUT(recorder.status(), bound);
    QCOMPARE(recorder.status(), worker_status::disconnected);
    QVERIFY(!slot->recording);
    QTRY_VERIFY_WITH_TIMEOUT(recorder.isOver(), bound);
}

void TestHotPlugWindows::anotherDevicesLossEndsNothing()
{
    PlayJob player(tone::make(440, 8), QStringLiteral("Speakers"));
    QVERIFY(!QTest::qWaitFor([&] { return player.status().has_value(); }, runningTime));
    QVERIFY(system_->unplug(L"Headset"));
    QVERIFY(!QTest::qWaitFor([&] { return player.status().has_value(); }, runningTime)); // it is looked at twice meanwhile
    player.stop();
    QTRY_VERIFY_WITH_TIMEOUT(player.isOver(), bound);
    QCOMPARE(player.status(), worker_status::finished);
}

QTEST_GUILESS_MAIN(TestHotPlugWindows)
#include "tst_hot_plug_windows.moc"
