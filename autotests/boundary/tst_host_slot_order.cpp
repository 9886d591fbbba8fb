// SPDX-License-Identifier: Apache-2.0
#include "host_probes.h"
#include "slot_table.h"

#include <QObject>
#include <QTest>

#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

using namespace boundary;
using namespace ostra;

/// The module's side of the boundary: every slot of the classes that the host implements, called as an entry of a plain table.
class TestHostSlotOrder : public QObject {
    Q_OBJECT

private slots:
    void callsEverySlotOfTheContext();
    void callsEverySlotOfTheMessageSink();
    void callsEverySlotOfTheProgressReporter();
    void callsEverySlotOfTheEventSource();
    void callsEverySlotOfTheManagementService();
    void callsEverySlotOfTheNumberHandler();
    void callsEverySlotOfTheTimer();
    void callsEverySlotOfTheModuleLoader();
    void callsEverySlotOfTheTemporaryPath();
    void callsEverySlotOfTheStyleManager();
    void destroysThroughSlotZero_data();
    void destroysThroughSlotZero();
};

void TestHostSlotOrder::callsEverySlotOfTheContext()
{
    using C = TestContext;
    QCOMPARE(slotsOf(&C::component, &C::messages, &C::reporter, &C::reserved4, &C::continueOnOutcome, &C::events),
             slotsUpTo(6));
    CallRecord record;
    ContextProbe probe(record);
    const auto table = tableOf<ContextTable>(&probe);
    QCOMPARE(table.component(&probe), addressOf<SystemComponent>(1));
    QCOMPARE(record.take(), QByteArray("component()"));
    QCOMPARE(table.messages(&probe), addressOf<MessageSink>(2));
    QCOMPARE(record.take(), QByteArray("messages()"));
    QCOMPARE(table.reporter(&probe), addressOf<ProgressReporter>(3));
    QCOMPARE(record.take(), QByteArray("reporter()"));
    table.reserved4(&probe);
    QCOMPARE(record.take(), QByteArray("reserved4()"));
    QCOMPARE(table.continueOnOutcome(&probe), true);
    QCOMPARE(record.take(), QByteArray("continueOnOutcome()"));
    QCOMPARE(table.events(&probe), addressOf<EventSource>(6));
    QCOMPARE(record.take(), QByteArray("events()"));
}

void TestHostSlotOrder::callsEverySlotOfTheMessageSink()
{
    QCOMPARE(slotsOf(&MessageSink::addMessage), slotsUpTo(1));
    CallRecord record;
    SinkProbe probe(record);
    tableOf<SinkTable>(&probe).addMessage(&probe, longAnswer, 2, 0xFFFFFFFFU);
    QCOMPARE(record.take(), "addMessage(" + describe(longAnswer) + ", 2, 4294967295)");
}

void TestHostSlotOrder::callsEverySlotOfTheProgressReporter()
{
    using R = ProgressReporter;
    QCOMPARE(slotsOf(&R::report, &R::requestInput, &R::reserved3, &R::canReceiveInput), slotsUpTo(4));
    CallRecord record;
    ReporterProbe probe(record);
    const auto table = tableOf<ReporterTable>(&probe);
    table.report(&probe, 100, longAnswer);
    QCOMPARE(record.take(), "report(100, " + describe(longAnswer) + ")");
    table.requestInput(&probe, addressOf<InputRequest>(2));
    QCOMPARE(record.take(), QByteArray("requestInput(0x7abc00000020)"));
    table.reserved3(&probe);
    QCOMPARE(record.take(), QByteArray("reserved3()"));
    QCOMPARE(table.canReceiveInput(&probe), true);
    QCOMPARE(record.take(), QByteArray("canReceiveInput()"));
}

void TestHostSlotOrder::callsEverySlotOfTheEventSource()
{
    QCOMPARE(slotsOf(&EventSource::pendingEvents), slotsUpTo(1));
    CallRecord record;
    EventsProbe probe(record);
    QCOMPARE(tableOf<EventsTable>(&probe).pendingEvents(&probe), 0xF0000001U);
    QCOMPARE(record.take(), QByteArray("pendingEvents()"));
}

void TestHostSlotOrder::callsEverySlotOfTheManagementService()
{
    QCOMPARE(slotsOf(&sal::Cim::query), slotsUpTo(1));
    CallRecord record;
    CimProbe probe(record);
    std::vector<sal::CimRow> rows(1);
    const std::array<const char *, 2> names{"DeviceName", "DriverVersion"};
    const auto code = tableOf<CimTable>(&probe).query(&probe, rows, "Name = 'x'", "SomeClass", 2, names.data(), "root\\CIMV2");
    QCOMPARE(code, -1);
    QCOMPARE(record.take(),
             QByteArray(R"(query(1, "Name = 'x'", "SomeClass", 2, "DeviceName", "DriverVersion", "root\CIMV2"))"));
    QCOMPARE(rows.size(), std::size_t{2});
    QVERIFY(rows[1] == sal::CimRow({longAnswer, std::nullopt}));
}

void TestHostSlotOrder::callsEverySlotOfTheNumberHandler()
{
    QCOMPARE(slotsOf(&sal::NumberHandler::toText), slotsUpTo(1));
    CallRecord record;
    NumberHandlerProbe probe(record);
    QCOMPARE(tableOf<NumberHandlerTable>(&probe).toText(&probe, std::numeric_limits<std::int64_t>::min()), longAnswer);
    QCOMPARE(record.take(), QByteArray("toText(-9223372036854775808)"));
}

void TestHostSlotOrder::callsEverySlotOfTheTimer()
{
    QCOMPARE(slotsOf(&sal::Timer::ticks), slotsUpTo(1));
    CallRecord record;
    TimerProbe probe(record);
    QCOMPARE(tableOf<TimerTable>(&probe).ticks(&probe), std::uint64_t{0x1122334455667701});
    QCOMPARE(record.take(), QByteArray("ticks()"));
}

void TestHostSlotOrder::callsEverySlotOfTheModuleLoader()
{
    QCOMPARE(slotsOf(&sal::ModuleLoader::load, &sal::ModuleLoader::release), slotsUpTo(2));
    CallRecord record;
    LoaderProbe probe(record);
    const auto table = tableOf<LoaderTable>(&probe);
    QCOMPARE(table.load(&probe, "shcore.dll", 1), addressOf<void>(1));
    QCOMPARE(record.take(), QByteArray(R"(load("shcore.dll", 1))"));
    table.release(&probe, addressOf<void>(2));
    QCOMPARE(record.take(), QByteArray("release(0x7abc00000020)"));
}

void TestHostSlotOrder::callsEverySlotOfTheTemporaryPath()
{
    QCOMPARE(slotsOf(&sal::TemporaryPath::path), slotsUpTo(1));
    CallRecord record;
    TemporaryPathProbe probe(record);
    QCOMPARE(tableOf<TextTable>(&probe).text(&probe), longAnswer);
    QCOMPARE(record.take(), QByteArray("path()"));
}

void TestHostSlotOrder::callsEverySlotOfTheStyleManager()
{
    QCOMPARE(slotsOf(&utils::style_manager::StyleManager::Stylesheet), slotsUpTo(1));
    CallRecord record;
    StyleManagerProbe probe(record);
    QCOMPARE(tableOf<TextTable>(&probe).text(&probe), longAnswer);
    QCOMPARE(record.take(), QByteArray("Stylesheet()"));
}

void TestHostSlotOrder::destroysThroughSlotZero_data()
{
    QTest::addColumn<QByteArray>("noted");
    QTest::newRow("TestContext") << destroyedThroughBothEntries<ContextProbe>();
    QTest::newRow("MessageSink") << destroyedThroughBothEntries<SinkProbe>();
    QTest::newRow("ProgressReporter") << destroyedThroughBothEntries<ReporterProbe>();
    QTest::newRow("EventSource") << destroyedThroughBothEntries<EventsProbe>();
    QTest::newRow("Cim") << destroyedThroughBothEntries<CimProbe>();
    QTest::newRow("NumberHandler") << destroyedThroughBothEntries<NumberHandlerProbe>();
    QTest::newRow("Timer") << destroyedThroughBothEntries<TimerProbe>();
    QTest::newRow("ModuleLoader") << destroyedThroughBothEntries<LoaderProbe>();
    QTest::newRow("TemporaryPath") << destroyedThroughBothEntries<TemporaryPathProbe>();
    QTest::newRow("StyleManager") << destroyedThroughBothEntries<StyleManagerProbe>();
}

void TestHostSlotOrder::destroysThroughSlotZero()
{
    QFETCH(QByteArray, noted);
    QCOMPARE(noted, twoDestructions());
}

QTEST_GUILESS_MAIN(TestHostSlotOrder)
#include "tst_host_slot_order.moc"
