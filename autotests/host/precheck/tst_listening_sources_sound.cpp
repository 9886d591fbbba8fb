// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/listening_sources.h"

#include "autotests/support/pulse_truth_linux.h"
#include "host/precheck/precheck.h"

#include <QObject>
#include <QTest>

using host::ListeningSource;

namespace {

constexpr unsigned full = 65536;

void load(const char *arguments) { pulse_truth::run(QString::fromLatin1(arguments).split(u' ')); }

void set(const char *source, unsigned volume, bool isMuted)
{
    pulse_truth::set(QStringLiteral("source"), QString::fromLatin1(source), {volume, volume}, isMuted);
}

std::optional<ListeningSource> look(const char *name)
{
    const auto sources = host::readListeningSources();
    const ListeningSource *found = sources ? host::findListeningSource(*sources, QString::fromUtf8(name)) : nullptr;
    return found == nullptr ? std::nullopt : std::optional(*found);
}

QStringList findings(const char *source)
{
    QStringList keys;
    for (const auto &finding : host::checkBeforeRun({QStringLiteral("Speakers"), {}, {}, false, QString::fromLatin1(source)})) {
        if (finding.isBlocking())
            keys.append(QLatin1String(host::precheckKey(finding.what)));
    }
    return keys;
}

} // namespace

// The virtual card: two sinks "Speakers", the microphone "Mic" at the second one, and "Headphones".
class TestListeningSourcesSound : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void knowsWhoseMonitorItIs_data();
    void knowsWhoseMonitorItIs();
    void seesAMutedOrLoweredSource();
    void seesWhatIsMutedBehindASource();
    void refusesARunWithADeafEar();
    void tellsThatTheServerIsSilent();
};

void TestListeningSourcesSound::initTestCase()
{
    load("load-module module-remap-sink sink_name=remapped master=sink1 sink_properties=device.description=Remapped");
    load("load-module module-remap-source source_name=ear master=sink1.monitor source_properties=device.description=Ear");
    load("load-module module-null-source source_name=air description=Air");
}

void TestListeningSourcesSound::init()
{
    for (const char *source : {"sink1.monitor", "sink2.monitor", "sink3.monitor", "mic1", "ear", "air"})
        set(source, full, false);
}

void TestListeningSourcesSound::knowsWhoseMonitorItIs_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("outputs");
    const auto add = [](const char *source, const char *outputs) {
        QTest::newRow(source) << QByteArray(source) << QString::fromLatin1(outputs);
    };
    add("Monitor of Speakers", "Speakers, Remapped");
    add("Monitor of Speakers (2)", "Speakers (2)");
    add("Monitor of Remapped", "Remapped");
    add("Mic", "Speakers (2)");
    add("Ear", "Speakers, Remapped");
    add("Air", "");
}

void TestListeningSourcesSound::knowsWhoseMonitorItIs()
{
    QFETCH(const QByteArray, source);
    const auto found = look(source.constData());
    QVERIFY(found.has_value());
    QTEST(found->hearsOutputs.join(QStringLiteral(", ")), "outputs");
    QVERIFY(found->isVirtual && found->isOpen());
}

void TestListeningSourcesSound::seesAMutedOrLoweredSource()
{
    set("sink1.monitor", full, true);
    QVERIFY(look("Monitor of Speakers")->isMuted && !look("Monitor of Speakers")->isOpen());
    QVERIFY(look("Monitor of Speakers (2)")->isOpen());
    set("sink1.monitor", full / 2, false);
    QCOMPARE(look("Monitor of Speakers")->level, 0.5F);
    QVERIFY(!look("loopback:Speakers")->isOpen());
}

void TestListeningSourcesSound::seesWhatIsMutedBehindASource()
{
    set("sink1.monitor", full, true);
    QVERIFY(look("Ear")->isMuted);
    QVERIFY(!look("Mic")->isMuted);
}

void TestListeningSourcesSound::refusesARunWithADeafEar()
{
    QCOMPARE(findings("Monitor of Speakers"), QStringList());
    set("sink1.monitor", full, true);
    QCOMPARE(findings("Monitor of Speakers"), QStringList{QStringLiteral("PRECHECK_SOURCE_MUTED")});
    set("sink1.monitor", 0, false);
    QCOMPARE(findings("Monitor of Speakers"), QStringList{QStringLiteral("PRECHECK_SOURCE_AT_ZERO")});
    QCOMPARE(findings("Nobody"), QStringList()); // the listener tells
    set("mic1", full, true);
    QCOMPARE(findings("Mic"), QStringList{QStringLiteral("PRECHECK_SOURCE_MUTED")});
}

void TestListeningSourcesSound::tellsThatTheServerIsSilent()
{
    const pulse_truth::OtherServer none("unix:/no/such/server");
    QVERIFY(!host::readListeningSources().has_value());
}

QTEST_GUILESS_MAIN(TestListeningSourcesSound)
#include "tst_listening_sources_sound.moc"
