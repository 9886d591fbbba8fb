// SPDX-License-Identifier: Apache-2.0
#include "audio/audio_devices.h"
#include "autotests/support/fake_sdl.h"

#include <QObject>
#include <QTest>

using namespace ostra::audio;
using Names = std::vector<std::string>;

class TestAudioDevices : public QObject {
    Q_OBJECT

private slots:
    void tellsWhetherThereAreAny_data();
    void tellsWhetherThereAreAny();
    void listsInTheLibrarysOrder();
    void skipsDevicesWithoutAName();
    void listsNothingWhenTheLibraryIsNotStarted();
    void asksForTheSideItIsToldTo_data();
    void asksForTheSideItIsToldTo();
    void knowsADeviceByItsExactName_data();
    void knowsADeviceByItsExactName();
    void takesADeviceThatWasRenamedForGone();
};

void TestAudioDevices::tellsWhetherThereAreAny_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("any");
    QTest::newRow("not started") << -1 << false;
    QTest::newRow("none") << 0 << false;
    QTest::newRow("one") << 1 << true;
    QTest::newRow("many") << 40 << true;
}

void TestAudioDevices::tellsWhetherThereAreAny()
{
    QFETCH(const int, count);
    FakeSdl fake;
    fake.deviceCount = count;
    QTEST(hasAudioDevices(true), "any");
    QTEST(hasAudioDevices(false), "any");
    QCOMPARE(fake.calls, (Names{"count 1", "count 0"}));
}

void TestAudioDevices::listsInTheLibrarysOrder()
{
    FakeSdl fake;
    fake.deviceNames = {"Zebra", "", "A&B", "<b>x</b>", "Zebra (2)", std::string(600, 'x'), "\xD0\x91"};
    QCOMPARE(listAudioDevices(true), (Names{"Zebra", "", "A&B", "<b>x</b>", "Zebra (2)", std::string(600, 'x'), "\xD0\x91"}));
}

void TestAudioDevices::skipsDevicesWithoutAName()
{
    FakeSdl fake;
    fake.deviceNames = {std::nullopt, "Mic", std::nullopt, "Line in"};
    QCOMPARE(listAudioDevices(true), (Names{"Mic", "Line in"}));
}

void TestAudioDevices::listsNothingWhenTheLibraryIsNotStarted()
{
    FakeSdl fake;
    fake.deviceCount = -1;
    QVERIFY(listAudioDevices(true).empty());
    QVERIFY(!isAudioDeviceConnected("", true));
    QCOMPARE(fake.count("name"), 0);
}

void TestAudioDevices::asksForTheSideItIsToldTo_data()
{
    QTest::addColumn<bool>("capture");
    QTest::addColumn<std::string>("side");
    QTest::newRow("output") << false << std::string("0");
    QTest::newRow("capture") << true << std::string("1");
}

void TestAudioDevices::asksForTheSideItIsToldTo()
{
    QFETCH(const bool, capture);
    QFETCH(const std::string, side);
    FakeSdl fake;
    fake.deviceNames = {"X"};
    listAudioDevices(capture);
    isAudioDeviceConnected("X", capture);
    QCOMPARE(fake.calls, (Names{"count " + side, "name 0 " + side, "count " + side, "name 0 " + side}));
}

void TestAudioDevices::knowsADeviceByItsExactName_data()
{
    QTest::addColumn<std::string>("name");
    QTest::addColumn<bool>("connected");
    QTest::newRow("first") << std::string("Mic") << true;
    QTest::newRow("last") << std::string("Line in") << true;
    QTest::newRow("other case") << std::string("mic") << false;
    QTest::newRow("beginning") << std::string("Line") << false;
    QTest::newRow("longer") << std::string("Mic ") << false;
    QTest::newRow("empty") << std::string() << false;
}

void TestAudioDevices::knowsADeviceByItsExactName()
{
    QFETCH(const std::string, name);
    FakeSdl fake;
    fake.deviceNames = {"Mic", std::nullopt, "Line in"};
    QTEST(isAudioDeviceConnected(name, true), "connected");
}

void TestAudioDevices::takesADeviceThatWasRenamedForGone()
{
    FakeSdl fake;
    fake.deviceNames = {"Mic"};
    QVERIFY(isAudioDeviceConnected("Mic", true));
    fake.deviceNames = {"Mic (2)"}; // as the library lists it after it was plugged in again
    QVERIFY(!isAudioDeviceConnected("Mic", true));
}

QTEST_GUILESS_MAIN(TestAudioDevices)
#include "tst_audio_devices.moc"
