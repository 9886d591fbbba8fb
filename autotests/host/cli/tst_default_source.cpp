// SPDX-License-Identifier: Apache-2.0
#include "host/cli/default_source.h"

#include <QObject>
#include <QTest>

class TestDefaultSource : public QObject {
    Q_OBJECT

private slots:
    void prefersTheDevicesOwnMonitor();
    void takesTheLoopbackWithoutAMonitor_data();
    void takesTheLoopbackWithoutAMonitor();
    void asksTheSystem();
};

void TestDefaultSource::prefersTheDevicesOwnMonitor()
{
    const QStringList inputs{QStringLiteral("Webcam"), QStringLiteral("Monitor of B"), QStringLiteral("Monitor of A")};
    QCOMPARE(host::monitorOrLoopback(QStringLiteral("A"), inputs), QStringLiteral("Monitor of A"));
}

void TestDefaultSource::takesTheLoopbackWithoutAMonitor_data()
{
    QTest::addColumn<QStringList>("inputs");
    QTest::newRow("no inputs") << QStringList{};
    QTest::newRow("a microphone") << QStringList{QStringLiteral("Webcam")};
    QTest::newRow("another's monitor") << QStringList{QStringLiteral("Monitor of B"), QStringLiteral("Monitor of A (2)")};
}

void TestDefaultSource::takesTheLoopbackWithoutAMonitor()
{
    QFETCH(const QStringList, inputs);
    QCOMPARE(host::monitorOrLoopback(QStringLiteral("A"), inputs), QStringLiteral("loopback:A"));
}

void TestDefaultSource::asksTheSystem()
{
    QCOMPARE(host::defaultSource(QStringLiteral("Speakers")), QStringLiteral("Monitor of Speakers"));
    QCOMPARE(host::defaultSource(QStringLiteral("Nowhere")),
             HAS_MONITORS ? QStringLiteral("Monitor of Nowhere") : QStringLiteral("loopback:Nowhere"));
}

QTEST_GUILESS_MAIN(TestDefaultSource)
#include "tst_default_source.moc"
