// SPDX-License-Identifier: Apache-2.0
#include "host/operator/volume_watch.h"

#include "autotests/support/pulse_truth_linux.h"

#include <QObject>
#include <QTest>

namespace {

constexpr unsigned full = 65536;

} // namespace

class TestVolumeWatchSound : public QObject {
    Q_OBJECT

private slots:
    void init();
    void seesWhatIsNotRaised_data();
    void seesWhatIsNotRaised();
    void seesATurnedDownSource_data();
    void seesATurnedDownSource();
    void seesNothingWithoutASoundServer();
};

void TestVolumeWatchSound::init()
{
    for (const char *sink : {"sink1", "sink2"})
        pulse_truth::set(QStringLiteral("sink"), QLatin1String(sink), {full, full}, false);
    for (const char *source : {"mic1", "sink1.monitor"})
        pulse_truth::set(QStringLiteral("source"), QLatin1String(source), {full, full}, false);
}

void TestVolumeWatchSound::seesWhatIsNotRaised_data()
{
    QTest::addColumn<QString>("sink");
    QTest::addColumn<unsigned>("volume");
    QTest::addColumn<bool>("isMuted");
    QTest::addColumn<bool>("wereRaised");
    QTest::newRow("all raised") << QStringLiteral("sink1") << full << false << true;
    QTest::newRow("muted") << QStringLiteral("sink1") << full << true << false;
    QTest::newRow("lowered") << QStringLiteral("sink1") << full / 2 << false << false;
    QTest::newRow("another one muted") << QStringLiteral("sink2") << full << true << true;
}

void TestVolumeWatchSound::seesWhatIsNotRaised()
{
    QFETCH(const QString, sink);
    QFETCH(const unsigned, volume);
    QFETCH(const bool, isMuted);
    pulse_truth::set(QStringLiteral("sink"), sink, {volume, volume}, isMuted);
    host::VolumeWatch watch({QStringLiteral("Speakers"), QStringLiteral("Mic")});
    watch.look();
    QTEST(watch.wereRaised(), "wereRaised");
}

void TestVolumeWatchSound::seesATurnedDownSource_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<unsigned>("volume");
    QTest::addColumn<bool>("isMuted");
    QTest::addColumn<bool>("isTurnedDown");
    QTest::newRow("all open") << QStringLiteral("sink1.monitor") << full << false << false;
    QTest::newRow("muted") << QStringLiteral("sink1.monitor") << full << true << true;
    QTest::newRow("lowered") << QStringLiteral("sink1.monitor") << full / 3 << false << true;
    QTest::newRow("another one muted") << QStringLiteral("mic1") << full << true << false;
}

// Nobody raises a monitor.
void TestVolumeWatchSound::seesATurnedDownSource()
{
    QFETCH(const QString, source);
    QFETCH(const unsigned, volume);
    QFETCH(const bool, isMuted);
    QFETCH(const bool, isTurnedDown);
    pulse_truth::set(QStringLiteral("source"), source, {volume, volume}, isMuted);
    host::VolumeWatch watch({QStringLiteral("Speakers"), QStringLiteral("Monitor of Speakers")});
    watch.look();
    QCOMPARE(watch.wasSourceTurnedDown(), isTurnedDown);
    QCOMPARE(watch.wereRaised(), !isTurnedDown);
    QCOMPARE(watch.complaint(), isTurnedDown ? QStringLiteral("the capture source was muted or turned down") : QString());
    host::VolumeWatch later({QStringLiteral("Monitor of Speakers")});
    later.lookAtSources();
    QCOMPARE(later.wasSourceTurnedDown(), isTurnedDown);
}

void TestVolumeWatchSound::seesNothingWithoutASoundServer()
{
    pulse_truth::set(QStringLiteral("sink"), QStringLiteral("sink1"), {full, full}, true);
    const pulse_truth::OtherServer none("unix:/no/such/server");
    host::VolumeWatch watch({QStringLiteral("Speakers")});
    watch.look();
    QVERIFY(watch.wereRaised());
}

QTEST_GUILESS_MAIN(TestVolumeWatchSound)
#include "tst_volume_watch_sound.moc"
