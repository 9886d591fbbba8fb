// SPDX-License-Identifier: Apache-2.0
#include "host/core/capture_source.h"

#include <QObject>
#include <QTest>

class TestCaptureSource : public QObject {
    Q_OBJECT

private slots:
    void readsTheDeviceOfALoopback_data();
    void readsTheDeviceOfALoopback();
    void tellsASignalFromTheAir_data();
    void tellsASignalFromTheAir();
    void knowsWhatTheSystemCallsIt();
};

void TestCaptureSource::readsTheDeviceOfALoopback_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("device");
    QTest::newRow("plain") << QStringLiteral("loopback:Speakers") << QStringLiteral("Speakers");
    QTest::newRow("as it is") << QStringLiteral("loopback: \u8033: \"1\" (2) ") << QStringLiteral(" \u8033: \"1\" (2) ");
    QTest::newRow("twice") << QStringLiteral("loopback:loopback:A") << QStringLiteral("loopback:A");
    QTest::newRow("no device") << QStringLiteral("loopback:") << QString();
    QTest::newRow("capitals") << QStringLiteral("Loopback:Speakers") << QString();
    QTest::newRow("elsewhere") << QStringLiteral("My loopback:Speakers") << QString();
    QTest::newRow("input") << QStringLiteral("loopback") << QString();
    QTest::newRow("nothing") << QString() << QString();
}

void TestCaptureSource::readsTheDeviceOfALoopback()
{
    QFETCH(const QString, source);
    QTEST(host::loopbackDevice(source), "device");
}

void TestCaptureSource::tellsASignalFromTheAir_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("isMonitor");
    QTest::newRow("monitor") << QStringLiteral("Monitor of X") << true;
    QTest::newRow("monitor by its name") << QStringLiteral("sink1.monitor") << true;
    QTest::newRow("loopback") << QStringLiteral("loopback:X") << true;
    QTest::newRow("loopback of nothing") << QStringLiteral("loopback:") << false;
    QTest::newRow("microphone") << QStringLiteral("Webcam") << false;
}

void TestCaptureSource::tellsASignalFromTheAir()
{
    QFETCH(const QString, source);
    QTEST(host::isMonitor(source), "isMonitor");
}

void TestCaptureSource::knowsWhatTheSystemCallsIt()
{
    const QString loopback = QStringLiteral("loopback:Kopfh\u00F6rer (2)");
    QCOMPARE(host::systemSource(loopback), HAS_MONITORS ? QStringLiteral("Monitor of Kopfh\u00F6rer (2)") : loopback);
    for (const char *source : {"Monitor of A", "a.monitor", "Webcam", "loopback:", ""})
        QCOMPARE(host::systemSource(QLatin1String(source)), QLatin1String(source));
}

QTEST_GUILESS_MAIN(TestCaptureSource)
#include "tst_capture_source.moc"
