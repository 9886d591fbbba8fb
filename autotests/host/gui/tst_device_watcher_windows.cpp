// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/fake_core_audio_windows.h"
#include "host/gui/device_watcher.h"

#include <QObject>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <windows.h>

#include <mmdeviceapi.h>

#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

using fake_core_audio::FakeCoreAudio;
using host::DeviceWatcher;

namespace {

constexpr int bound = 5000; // ms; a notice takes one turn of the event loop

using Notice = std::function<void(IMMNotificationClient &)>;

void sendFromAnotherThread(IMMNotificationClient &client, const Notice &notice)
{
    std::thread([&] { notice(client); }).join();
}

} // namespace

class TestDeviceWatcher : public QObject {
    Q_OBJECT

private slots:
    void tellsOnItsOwnThread_data();
    void tellsOnItsOwnThread();
    void keepsOtherNoticesToItself_data();
    void keepsOtherNoticesToItself();
    void hearsNothingAfterItsEnd();
    void dropsANoticeThatIsOnItsWayAtTheEnd();
    void givesEverythingBack();
};

void TestDeviceWatcher::tellsOnItsOwnThread_data()
{
    QTest::addColumn<Notice>("notice");
    QTest::newRow("plugged in") << Notice([](IMMNotificationClient &client) { client.OnDeviceAdded(L"new"); });
    QTest::newRow("taken away") << Notice([](IMMNotificationClient &client) { client.OnDeviceRemoved(L"old"); });
    QTest::newRow("jack unplugged") << Notice([](IMMNotificationClient &client) { client.OnDeviceStateChanged(L"jack", 8); });
}

void TestDeviceWatcher::tellsOnItsOwnThread()
{
    QFETCH(const Notice, notice);
    const FakeCoreAudio audio;
    DeviceWatcher watcher;
    QVERIFY(audio.client() != nullptr);
    QSignalSpy changed(&watcher, &DeviceWatcher::devicesChanged);
    QThread *heardOn = nullptr;
    connect(
        &watcher, &DeviceWatcher::devicesChanged, &watcher, [&] { heardOn = QThread::currentThread(); }, Qt::DirectConnection);
    sendFromAnotherThread(*audio.client(), notice);
    QCOMPARE(changed.size(), 0);
    QVERIFY(changed.wait(bound));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(heardOn, QThread::currentThread());
}

void TestDeviceWatcher::keepsOtherNoticesToItself_data()
{
    QTest::addColumn<Notice>("notice");
    QTest::newRow("another default device")
        << Notice([](IMMNotificationClient &client) { client.OnDefaultDeviceChanged(eRender, eConsole, L"other"); });
    QTest::newRow("a property") << Notice([](IMMNotificationClient &client) { client.OnPropertyValueChanged(L"one", {}); });
}

void TestDeviceWatcher::keepsOtherNoticesToItself()
{
    QFETCH(const Notice, notice);
    const FakeCoreAudio audio;
    DeviceWatcher watcher;
    QSignalSpy changed(&watcher, &DeviceWatcher::devicesChanged);
    sendFromAnotherThread(*audio.client(), notice);
    sendFromAnotherThread(*audio.client(), [](IMMNotificationClient &client) { client.OnDeviceAdded(L"new"); });
    QVERIFY(changed.wait(bound)); // the second one comes after what the first one would have sent
    QCOMPARE(changed.size(), 1);
}

void TestDeviceWatcher::hearsNothingAfterItsEnd()
{
    const FakeCoreAudio audio;
    auto watcher = std::make_unique<DeviceWatcher>();
    watcher.reset();
    QVERIFY(audio.client() == nullptr);
}

void TestDeviceWatcher::dropsANoticeThatIsOnItsWayAtTheEnd()
{
    const FakeCoreAudio audio;
    auto watcher = std::make_unique<DeviceWatcher>();
    int count = 0;
    QObject receiver;
    connect(watcher.get(), &DeviceWatcher::devicesChanged, &receiver, [&] { ++count; });
    sendFromAnotherThread(*audio.client(), [](IMMNotificationClient &client) { client.OnDeviceAdded(L"new"); });
    watcher.reset();
    QCoreApplication::processEvents();
    QCOMPARE(count, 0);
}

void TestDeviceWatcher::givesEverythingBack()
{
    const FakeCoreAudio audio;
    auto watcher = std::make_unique<DeviceWatcher>();
    QCOMPARE(audio.openApartmentCount(), 1);
    watcher.reset();
    QCOMPARE(audio.openApartmentCount(), 0);
    QCOMPARE(audio.referenceCount(), 0L);
    QCOMPARE(audio.complaints(), std::vector<std::string>{});
}

QTEST_GUILESS_MAIN(TestDeviceWatcher)
#include "tst_device_watcher_windows.moc"
