// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/reports/sample_record.h"
#include "host/reports/run_limits.h"
#include "host/reports/run_report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>
#include <QTest>

using host::RunRecord;

class TestRunLimits : public QObject {
    Q_OBJECT

private slots:
    void choosesTheLimits_data();
    void choosesTheLimits();
    void claimsNothingOfARunThatHeardNothing();
    void claimsNoJudgementWhereNobodyJudged();
    void tellsWhatSilenceCanMean_data();
    void tellsWhatSilenceCanMean();
    void tellsThatTheClipsAreTheirOwnMeasure();
};

void TestRunLimits::choosesTheLimits_data()
{
    QTest::addColumn<QString>("letter");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("told");
    QTest::addColumn<QString>("notTold");
    const QString server = QStringLiteral("digital path up to the sound server");
    const QString room = QStringLiteral("hears the room");
    const QString person = QStringLiteral("A person");
    QTest::newRow("monitor") << QStringLiteral("p") << QStringLiteral("Monitor of X") << server << room;
    QTest::newRow("monitor by its name") << QStringLiteral("p") << QStringLiteral("sink1.monitor") << server << room;
    const QString mixer = QStringLiteral("digital path up to that mixer, not the device's own volume");
    QTest::newRow("loopback") << QStringLiteral("p") << QStringLiteral("loopback:X") << mixer << server;
    QTest::newRow("microphone test at a loopback")
        << QStringLiteral("m") << QStringLiteral("loopback:X") << QStringLiteral("up to the system's mixer") << server;
    QTest::newRow("microphone") << QStringLiteral("p") << QStringLiteral("Webcam") << room << server;
    QTest::newRow("attended") << QStringLiteral("p") << QString() << person << room;
    QTest::newRow("microphone test at a monitor")
        << QStringLiteral("m") << QStringLiteral("Monitor of X") << server << QStringLiteral("from another");
    QTest::newRow("microphone test in a room")
        << QStringLiteral("m") << QStringLiteral("Webcam") << QStringLiteral("from another") << server;
    QTest::newRow("microphone test of a person") << QStringLiteral("m") << QString() << person << QStringLiteral("sentence");
    QTest::newRow("microphone test") << QStringLiteral("m") << QString() << QStringLiteral("One microphone") << server;
}

void TestRunLimits::choosesTheLimits()
{
    QFETCH(const QString, letter);
    QFETCH(const QString, source);
    QFETCH(const QString, told);
    QFETCH(const QString, notTold);
    RunRecord record = playbackRecord();
    record.testLetter = letter;
    record.listenedTo = source;
    record.isUnattended = !source.isEmpty();
    record.digits = {heardDigit()};
    const QString limits = host::runLimits(record).join(u'\n');
    QVERIFY2(limits.contains(told), qPrintable(limits));
    QVERIFY2(!limits.contains(notTold), qPrintable(limits));
    QCOMPARE(limits.contains(QStringLiteral("full volume only")), letter == QLatin1String("p"));
}

void TestRunLimits::claimsNothingOfARunThatHeardNothing()
{
    RunRecord ended = playbackRecord();
    ended.testLetter = QStringLiteral("m");
    ended.digits.clear();
    RunRecord refused = playbackRecord();
    refused.wasModuleCalled = false;
    refused.reason = QStringLiteral("listener lost");
    refused.microphone = QStringLiteral("Mic");
    for (const RunRecord &record : {ended, refused}) {
        QCOMPARE(host::runLimits(record).size(), 1);
        QVERIFY(host::runLimits(record).constFirst().contains(QStringLiteral("says nothing about the device")));
    }
    const QString unplayed = QStringLiteral("Nothing was played and heard");
    QVERIFY(host::runLimits(refused).constFirst().contains(unplayed));
    ended.code = ended.moduleCode = 4;
    for (const bool wasStopped : {false, true}) {
        ended.wasStopped = wasStopped;
        QCOMPARE(host::runLimits(ended),
                 QStringList{QStringLiteral("The run ended before a verdict: this run says nothing about the device.")});
    }
    ended.testLetter = QStringLiteral("p");
    ended.digits = {heardDigit()};
    QVERIFY(host::runLimits(ended).constFirst().startsWith(QStringLiteral("The run ended before a verdict")));
    QVERIFY(!host::runLimits(ended).join(u'\n').contains(unplayed));
}

void TestRunLimits::claimsNoJudgementWhereNobodyJudged()
{
    RunRecord record = microphoneRecord();
    record.isUnattended = false;
    record.recording.reset();
    QVERIFY(host::runLimits(record).contains(QStringLiteral("A person compared the sounds: nothing was measured.")));
    record.code = record.moduleCode = 4;
    QCOMPARE(host::runLimits(record),
             QStringList{QStringLiteral("Nobody judged what was played: this run says nothing about the device.")});
}

void TestRunLimits::tellsWhatSilenceCanMean_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("isHeard");
    QTest::newRow("silent monitor") << QStringLiteral("Monitor of X") << false;
    QTest::newRow("silent microphone") << QStringLiteral("Webcam") << false;
    QTest::newRow("heard") << QStringLiteral("Monitor of X") << true;
}

void TestRunLimits::tellsWhatSilenceCanMean()
{
    QFETCH(const QString, source);
    QFETCH(const bool, isHeard);
    RunRecord record = playbackRecord();
    record.listenedTo = source;
    record.digits = {missedDigit(), isHeard ? heardDigit() : missedDigit()};
    const QString limits = host::runLimits(record).join(u'\n');
    QCOMPARE(limits.contains(QStringLiteral("a source that is muted or hears another device")), !isHeard);
    QCOMPARE(limits.contains(QStringLiteral("does not tell its true volumes")), !isHeard);
}

void TestRunLimits::tellsThatTheClipsAreTheirOwnMeasure()
{
    const QString sentence = QStringLiteral("the very clips that were played");
    RunRecord attended = playbackRecord();
    attended.digits = {heardDigit()};
    QVERIFY(host::runLimits(attended).join(u'\n').contains(sentence));
    attended.isUnattended = false;
    QVERIFY(!host::runLimits(attended).join(u'\n').contains(sentence));
}

QTEST_GUILESS_MAIN(TestRunLimits)
#include "tst_run_limits.moc"
