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
    void seesNothingWithoutASoundServer();
};

void TestVolumeWatchSound::init()
{
    for (const char *sink : {"sink1", "sink2"})
        pulse_truth::set(QStringLiteral("sink"), QLatin1String(sink), {full, full}, false);
    pulse_truth::set(QStringLiteral("source"), QStringLiteral("mic1"), {full, full}, false);
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
