// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/listening_sources.h"

#include "host/precheck/precheck.h"
#include "host/precheck/virtual_devices.h"

#include <QObject>
#include <QTest>

using host::ListeningSource;
using host::Precheck;

namespace {

ListeningSource source(const char *name, const QStringList &outputs = {})
{
    ListeningSource made;
    made.name = QString::fromLatin1(name);
    made.hearsOutputs = outputs;
    return made;
}

const QList<ListeningSource> machine{source("Monitor of Speakers", {QStringLiteral("Speakers")}),
                                     source("Monitor of nobody knows", {QStringLiteral("Speakers"), QStringLiteral("Swapped")}),
                                     source("Ear", {QStringLiteral("Hidden Sink")}), source("Room Microphone")};

} // namespace

class TestListeningSources : public QObject {
    Q_OBJECT

private slots:
    void tellsWhichOutputIsHeardInstead_data();
    void tellsWhichOutputIsHeardInstead();
    void goesByTheNameWithoutTheSystemsWord_data();
    void goesByTheNameWithoutTheSystemsWord();
    void findsTheLoopbackOfAnOutput();
    void takesNoAnswerForNoPermission();
    void blocksAnUnattendedRunOnly_data();
    void blocksAnUnattendedRunOnly();
};

void TestListeningSources::tellsWhichOutputIsHeardInstead_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("other");
    const auto add = [](const char *source, const char *device, const char *other) {
        QTest::addRow("%s, %s", source, device)
            << QString::fromLatin1(source) << QString::fromLatin1(device) << QString::fromLatin1(other);
    };
    add("Monitor of Speakers", "Speakers", "");
    add("Monitor of Speakers", "Headphones", "Speakers");
    add("Monitor of nobody knows", "Swapped", ""); // the system knows better than the name
    add("Ear", "Speakers", "Hidden Sink");         // by no name a monitor
    add("Room Microphone", "Speakers", "");
    add("loopback:Speakers", "Speakers", "");
    add("loopback:Speakers", "Headphones", "Speakers");
    add("Monitor of Gone", "Speakers", "Gone"); // not listed
    add("sink9.monitor", "Speakers", "sink9");
    add("Nobody", "Speakers", "");
}

void TestListeningSources::tellsWhichOutputIsHeardInstead()
{
    QFETCH(const QString, source);
    QFETCH(const QString, device);
    QTEST(host::otherOutputHeard(machine, source, device).value_or(QString()), "other");
}

void TestListeningSources::goesByTheNameWithoutTheSystemsWord_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("isOther");
    QTest::newRow("its own") << QStringLiteral("Monitor of Speakers") << false;
    QTest::newRow("another's") << QStringLiteral("Monitor of Speakers (2)") << true;
    QTest::newRow("no monitor") << QStringLiteral("Ear") << false;
}

void TestListeningSources::goesByTheNameWithoutTheSystemsWord()
{
    QFETCH(const QString, source);
    const auto other = host::otherOutputHeard(std::nullopt, source, QStringLiteral("Speakers"));
    QTEST(other.has_value(), "isOther");
}

void TestListeningSources::findsTheLoopbackOfAnOutput()
{
    QCOMPARE(host::findListeningSource(machine, QStringLiteral("loopback:Speakers")), &machine[0]);
    QCOMPARE(host::findListeningSource(machine, QStringLiteral("loopback:Swapped")), &machine[1]);
    QVERIFY(host::findListeningSource(machine, QStringLiteral("loopback:Ear")) == nullptr);
}

void TestListeningSources::takesNoAnswerForNoPermission()
{
    const QString device = QStringLiteral("Speakers");
    QCOMPARE(host::virtualRefusal({{}, false, true}, device), nullptr);
    QCOMPARE(host::virtualRefusal({{device}, false, true}, device), "REASON_VIRTUAL_DEVICE");
    QCOMPARE(host::virtualRefusal({{}, false, false}, device), "REASON_VIRTUAL_UNKNOWN");
}

void TestListeningSources::blocksAnUnattendedRunOnly_data()
{
    QTest::addColumn<Precheck>("what");
    QTest::addColumn<bool>("isBlockingAPerson");
    QTest::addColumn<bool>("isBlockingTheOperator");
    QTest::newRow("microphone") << Precheck::microphoneBlocked << false << true;
    QTest::newRow("source muted") << Precheck::sourceMuted << true << true;
    QTest::newRow("source at zero") << Precheck::sourceAtZero << true << true;
    QTest::newRow("device muted") << Precheck::deviceMuted << false << false;
}

void TestListeningSources::blocksAnUnattendedRunOnly()
{
    QFETCH(const Precheck, what);
    const host::PrecheckFinding ofAPerson{what, {}, false};
    const host::PrecheckFinding ofTheOperator{what, {}, true};
    QTEST(ofAPerson.isBlocking(), "isBlockingAPerson");
    QTEST(ofTheOperator.isBlocking(), "isBlockingTheOperator");
}

QTEST_GUILESS_MAIN(TestListeningSources)
#include "tst_listening_sources.moc"
