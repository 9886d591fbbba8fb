// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/listener/listener_process.h"

#include <QObject>
#include <QTest>

// What Wine cannot show: a device that goes away, a polite kill, a machine without a sound server.
class TestAudioListenerLinux : public QObject {
    Q_OBJECT

private slots:
    void endsWhenAskedTo();
    void endsOnADeadSoundServer();
    void tellsASleepingSourceFromASilentOne();
    void tellsThatItsSourceIsLost();
};

void TestAudioListenerLinux::endsWhenAskedTo()
{
    ListenerProcess listener(listeningArguments(QStringLiteral("Monitor of Speakers"), QStringLiteral("en_US")));
    QVERIFY(!listener.waitFor(QStringLiteral("ready")).isEmpty());
    listener.process().terminate();
    QVERIFY(listener.waitForEnd());
    QCOMPARE(listener.process().exitCode(), 0);
}

void TestAudioListenerLinux::endsOnADeadSoundServer()
{
    const QByteArray server = qgetenv("PULSE_SERVER");
    qputenv("PULSE_SERVER", QByteArrayLiteral("unix:/no/such/server"));
    ListenerProcess listener(listeningArguments(QStringLiteral("Monitor of Speakers"), QStringLiteral("en_US")));
    qputenv("PULSE_SERVER", server);
    QVERIFY(listener.waitForEnd());
    QCOMPARE(listener.process().exitCode(), 3);
    QVERIFY(listener.process().readAllStandardError().contains("no sound server"));
}

void TestAudioListenerLinux::tellsASleepingSourceFromASilentOne()
{
    ListenerProcess listener(listeningArguments(QStringLiteral("Mic"), QStringLiteral("en_US")));
    QVERIFY(!listener.waitFor(QStringLiteral("ready")).isEmpty());
    QProcess server;
    server.start(QStringLiteral("pactl"), {QStringLiteral("suspend-source"), QStringLiteral("mic1"), QStringLiteral("1")});
    QVERIFY(server.waitForFinished() && server.exitCode() == 0);
    double frameCount = -1;
    for (int count = 0; count < 10 && frameCount != 0; ++count)
        frameCount = listener.waitFor(QStringLiteral("level")).value(QLatin1String("frames")).toDouble(-1);
    QCOMPARE(frameCount, 0.0);
}

void TestAudioListenerLinux::tellsThatItsSourceIsLost()
{
    ListenerProcess listener(listeningArguments(QStringLiteral("Monitor of Headphones"), QStringLiteral("en_US")));
    QVERIFY(!listener.waitFor(QStringLiteral("ready")).isEmpty());
    QProcess server;
    server.start(QStringLiteral("pactl"), {QStringLiteral("unload-module"), QStringLiteral("module-null-sink")});
    QVERIFY(server.waitForFinished() && server.exitCode() == 0);
    QVERIFY(!listener.waitFor(QStringLiteral("lost")).isEmpty());
    QVERIFY(listener.waitForEnd());
    QCOMPARE(listener.process().exitCode(), 4);
    QCOMPARE(listener.countOf(QStringLiteral("lost")), 1);
}

QTEST_GUILESS_MAIN(TestAudioListenerLinux)
#include "tst_audio_listener_linux.moc"
