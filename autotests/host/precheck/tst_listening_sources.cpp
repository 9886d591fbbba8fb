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
                                     source("Ear", {QStringLiteral("Hidden Sink")}), source("Room Microphone"),
                                     source("Monitor of Headphones")};

} // namespace

class TestListeningSources : public QObject {
    Q_OBJECT

private slots:
    void acceptsOnlyTheDevicesOwnMonitor_data();
    void acceptsOnlyTheDevicesOwnMonitor();
    void goesByTheNameWithoutTheSystemsWord_data();
    void goesByTheNameWithoutTheSystemsWord();
    void findsTheLoopbackOfAnOutput();
    void takesNoAnswerForNoPermission();
    void blocksAnUnattendedRunOnly_data();
    void blocksAnUnattendedRunOnly();
};

void TestListeningSources::acceptsOnlyTheDevicesOwnMonitor_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("device");
    QTest::addColumn<bool>("isAnother");
    const auto add = [](const char *source, const char *device, bool isAnother) {
        QTest::addRow("%s, %s", source, device) << QString::fromLatin1(source) << QString::fromLatin1(device) << isAnother;
    };
    add("Monitor of Speakers", "Speakers", false);
    add("Monitor of Speakers", "Headphones", true);
    add("Monitor of nobody knows", "Swapped", false); // the system knows better than the name
    add("Ear", "Speakers", true);                     // by no name a monitor
    add("Room Microphone", "Speakers", false);
    add("Monitor of Headphones", "Headphones", true); // by its name alone
    add("loopback:Speakers", "Speakers", false);
    add("loopback:Speakers", "Headphones", true);
    add("Monitor of Gone", "Speakers", true); // not listed
    add("sink9.monitor", "Speakers", true);
    add("Nobody", "Speakers", false);
}

void TestListeningSources::acceptsOnlyTheDevicesOwnMonitor()
{
    QFETCH(const QString, source);
    QFETCH(const QString, device);
    QTEST(host::hearsAnotherOutput(machine, source, device), "isAnother");
}

void TestListeningSources::goesByTheNameWithoutTheSystemsWord_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("isAnother");
    QTest::newRow("its own") << QStringLiteral("Monitor of Speakers") << false;
    QTest::newRow("another's") << QStringLiteral("Monitor of Speakers (2)") << true;
    QTest::newRow("no monitor") << QStringLiteral("Ear") << false;
}

void TestListeningSources::goesByTheNameWithoutTheSystemsWord()
{
    QFETCH(const QString, source);
    QTEST(host::hearsAnotherOutput(std::nullopt, source, QStringLiteral("Speakers")), "isAnother");
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
