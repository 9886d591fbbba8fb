// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/capture_devices.h"
#include "host/precheck/device_names.h"
#include "host/precheck/virtual_devices.h"

#include <QObject>
#include <QTest>

class TestVirtualDevices : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { qunsetenv("SDL_AUDIODRIVER"); }

    void countsEqualDescriptions();
    void takesEveryDeviceOfAPretendedDriverForVirtual_data();
    void takesEveryDeviceOfAPretendedDriverForVirtual();
};

void TestVirtualDevices::countsEqualDescriptions()
{
    host::DeviceNames names;
    QCOMPARE(names.next(QStringLiteral("A")), QStringLiteral("A"));
    QCOMPARE(names.next(QStringLiteral("B")), QStringLiteral("B"));
    QCOMPARE(names.next(QStringLiteral("A")), QStringLiteral("A (2)"));
    QCOMPARE(names.next(QStringLiteral("A")), QStringLiteral("A (3)"));
}

void TestVirtualDevices::takesEveryDeviceOfAPretendedDriverForVirtual_data()
{
    QTest::addColumn<QByteArray>("driver");
    QTest::newRow("dummy") << QByteArray("dummy");
    QTest::newRow("disk") << QByteArray("disk");
}

void TestVirtualDevices::takesEveryDeviceOfAPretendedDriverForVirtual()
{
    QFETCH(const QByteArray, driver);
    qputenv("SDL_AUDIODRIVER", driver);
    QVERIFY(host::readVirtualDevices().contains(QStringLiteral("anything")));
    QVERIFY(host::readCaptureDevices().isEmpty());
}

QTEST_GUILESS_MAIN(TestVirtualDevices)
#include "tst_virtual_devices.moc"
