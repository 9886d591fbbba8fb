// SPDX-License-Identifier: Apache-2.0
#include "host/operator/capture_probe.h"

#include "autotests/host/operator/listener_script.h"
#include "host/precheck/listening_sources.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTest>

using host::Delivery;

namespace {

void sayMoments(ListenerScript &script, int count, double peakDbfs)
{
    for (int moment = 0; moment < count; ++moment)
        script.say(R"({"event":"meter","atMs":1,"rmsDbfs":-120,"peakDbfs":)" + QByteArray::number(peakDbfs) + '}');
}

} // namespace

// The listener is a stand-in beside this program.
class TestCaptureProbe : public QObject {
    Q_OBJECT

private slots:
    void hearsWhatIsDelivered_data();
    void hearsWhatIsDelivered();
    void knowsNothingOfASourceThatEnds();
    void knowsNothingOfASourceThatDoesNotAnswer();
    void judgesOnlyWhatMustDeliverNoise_data();
    void judgesOnlyWhatMustDeliverNoise();
};

void TestCaptureProbe::hearsWhatIsDelivered_data()
{
    QTest::addColumn<int>("zeroCount");
    QTest::addColumn<int>("noiseCount");
    QTest::addColumn<Delivery>("delivery");
    QTest::newRow("noise") << 0 << 1 << Delivery::sound;
    QTest::newRow("zeros at first") << 5 << 1 << Delivery::sound;
    QTest::newRow("zeros for a second") << 10 << 0 << Delivery::zerosOnly;
    QTest::newRow("noise too late") << 10 << 1 << Delivery::zerosOnly;
}

void TestCaptureProbe::hearsWhatIsDelivered()
{
    QFETCH(const int, zeroCount);
    QFETCH(const int, noiseCount);
    ListenerScript script;
    sayMoments(script, zeroCount, -120);
    sayMoments(script, noiseCount, -95.5);
    QTEST(host::probeCapture(QStringLiteral("Mic")), "delivery");
}

void TestCaptureProbe::knowsNothingOfASourceThatEnds()
{
    ListenerScript script;
    sayMoments(script, 9, -120);
    script.end(1);
    QCOMPARE(host::probeCapture(QStringLiteral("Mic")), Delivery::unknown);
}

void TestCaptureProbe::knowsNothingOfASourceThatDoesNotAnswer()
{
    const ListenerScript script(false);
    QElapsedTimer time;
    time.start();
    QCOMPARE(host::probeCapture(QStringLiteral("Mic")), Delivery::unknown);
    QVERIFY2(time.elapsed() < 15'000, qPrintable(QString::number(time.elapsed())));
}

void TestCaptureProbe::judgesOnlyWhatMustDeliverNoise_data()
{
    QTest::addColumn<QStringList>("hears");
    QTest::addColumn<bool>("isVirtual");
    QTest::addColumn<bool>("isMuted");
    QTest::addColumn<float>("level");
    QTest::addColumn<bool>("mustDeliver");
    QTest::newRow("microphone") << QStringList() << false << false << 1.0F << true;
    QTest::newRow("lowered") << QStringList() << false << false << 0.2F << true;
    QTest::newRow("monitor of an idle output") << QStringList{QStringLiteral("Speakers")} << false << false << 1.0F << false;
    QTest::newRow("null source") << QStringList() << true << false << 1.0F << false;
    QTest::newRow("muted, which the run changes") << QStringList() << false << true << 1.0F << false;
    QTest::newRow("at zero") << QStringList() << false << false << 0.0F << false;
}

void TestCaptureProbe::judgesOnlyWhatMustDeliverNoise()
{
    QFETCH(const QStringList, hears);
    QFETCH(const bool, isVirtual);
    QFETCH(const bool, isMuted);
    QFETCH(const float, level);
    QTEST(host::mustDeliverNoise({QStringLiteral("Mic"), hears, isVirtual, isMuted, level}), "mustDeliver");
}

QTEST_GUILESS_MAIN(TestCaptureProbe)
#include "tst_capture_probe.moc"
