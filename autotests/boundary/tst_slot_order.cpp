// SPDX-License-Identifier: Apache-2.0
#include "module_probes.h"
#include "slot_table.h"

#include <QObject>
#include <QTest>

#include <cstdint>
#include <string>
#include <vector>

using namespace boundary;
using namespace ostra;

namespace {

constexpr std::uint32_t bigIndex = 0xFFFFFFFEU;
const QByteArray bigIndexText = "4294967294";
const QByteArray identityText = "65244/11259375/1193046/fedcabcdef123456";

bool sameRecords(const std::vector<OpaqueRecord> &records)
{
    return records.size() == 1 && records[0].first == someRecords[0].first && records[0].second == someRecords[0].second &&
           records[0].third == someRecords[0].third;
}

} // namespace

/// The host's side of the boundary: every slot of the classes that the module implements, called as an entry of a plain table.
class TestSlotOrder : public QObject {
    Q_OBJECT

private slots:
    void callsEverySlotOfTheModuleInterface();
    void callsEverySlotOfTheProductVersion();
    void callsEverySlotOfTheDiagnostic();
    void callsTheSlotsOfATestThatTakeOrGiveObjects();
    void callsTheOtherSlotsOfATest();
    void callsTheSlotsOfTheResourceByIdentity();
    void callsTheOtherSlotsOfTheResource();
    void callsEverySlotOfTheComponentManager();
    void callsEverySlotOfAComponent();
    void callsEverySlotOfAWidgetWrapper();
    void destroysThroughSlotZero_data();
    void destroysThroughSlotZero();
};

void TestSlotOrder::callsEverySlotOfTheModuleInterface()
{
    using M = ModuleInterface;
    QCOMPARE(slotsOf(&M::diagnosticAt, &M::diagnosticCount, &M::resource, &M::componentManager, &M::additionalItemAt,
                     &M::additionalItemCount, &M::auxiliary, &M::requiresInteraction),
             slotsUpTo(8));
    CallRecord record;
    const ModuleInterfaceProbe probe(record);
    const auto table = tableOf<ModuleInterfaceTable>(&probe);
    QCOMPARE(table.diagnosticAt(&probe, bigIndex), addressOf<Diagnostic>(1));
    QCOMPARE(record.take(), "diagnosticAt(" + bigIndexText + ")");
    QCOMPARE(table.diagnosticCount(&probe), std::uint64_t{0x1122334455667702});
    QCOMPARE(record.take(), QByteArray("diagnosticCount()"));
    QCOMPARE(table.resource(&probe), addressOf<Resource>(3));
    QCOMPARE(record.take(), QByteArray("resource()"));
    QCOMPARE(table.componentManager(&probe), addressOf<SystemComponentManager>(4));
    QCOMPARE(record.take(), QByteArray("componentManager()"));
    QCOMPARE(table.additionalItemAt(&probe, bigIndex), addressOf<void>(5));
    QCOMPARE(record.take(), "additionalItemAt(" + bigIndexText + ")");
    QCOMPARE(table.additionalItemCount(&probe), std::uint64_t{0x1122334455667706});
    QCOMPARE(record.take(), QByteArray("additionalItemCount()"));
    QCOMPARE(table.auxiliary(&probe), addressOf<void>(7));
    QCOMPARE(record.take(), QByteArray("auxiliary()"));
    QCOMPARE(table.requiresInteraction(&probe), true);
    QCOMPARE(record.take(), QByteArray("requiresInteraction()"));
}

void TestSlotOrder::callsEverySlotOfTheProductVersion()
{
    using V = ProductVersion;
    QCOMPARE(slotsOf(&V::major, &V::minor, &V::build, &V::revision), slotsUpTo(4));
    CallRecord record;
    const ProductVersionProbe probe(record);
    const auto table = tableOf<ProductVersionTable>(&probe);
    QCOMPARE(table.majorNumber(&probe), 0xF0000001U);
    QCOMPARE(record.take(), QByteArray("major()"));
    QCOMPARE(table.minorNumber(&probe), 0xF0000002U);
    QCOMPARE(record.take(), QByteArray("minor()"));
    QCOMPARE(table.build(&probe), 0xF0000003U);
    QCOMPARE(record.take(), QByteArray("build()"));
    QCOMPARE(table.revision(&probe), 0xF0000004U);
    QCOMPARE(record.take(), QByteArray("revision()"));
}

void TestSlotOrder::callsEverySlotOfTheDiagnostic()
{
    using D = Diagnostic;
    QCOMPARE(slotsOf(&D::id, &D::testCount, &D::testAt, &D::findTest), slotsUpTo(4));
    CallRecord record;
    const DiagnosticProbe probe(record);
    const auto table = tableOf<DiagnosticTable>(&probe);
    QCOMPARE(describe(table.id(&probe)), identityText);
    QCOMPARE(record.take(), QByteArray("id()"));
    QCOMPARE(table.testCount(&probe), std::uint64_t{0x1122334455667702});
    QCOMPARE(record.take(), QByteArray("testCount()"));
    QCOMPARE(table.testAt(&probe, bigIndex), addressOf<Test>(3));
    QCOMPARE(record.take(), "testAt(" + bigIndexText + ")");
    QCOMPARE(table.findTest(&probe, someIdentity), addressOf<Test>(4));
    QCOMPARE(record.take(), "findTest(" + identityText + ")");
}

void TestSlotOrder::callsTheSlotsOfATestThatTakeOrGiveObjects()
{
    QCOMPARE(slotsOf(&Test::isSupported, &Test::run), slotsUpTo(2));
    QCOMPARE(slotsOf(&Test::firstList, &Test::setOption, &Test::secondList, &Test::configure), QList<qsizetype>({5, 6, 7, 10}));
    CallRecord record;
    TestProbe probe(record);
    const auto table = tableOf<TestTable>(&probe);
    QCOMPARE(table.isSupported(&probe, addressOf<SystemComponent>(1)), true);
    QCOMPARE(record.take(), QByteArray("isSupported(0x7abc00000010)"));
    QCOMPARE(table.run(&probe, addressOf<TestContext>(2)), 0xF0000002U);
    QCOMPARE(record.take(), QByteArray("run(0x7abc00000020)"));
    QVERIFY(sameRecords(table.firstList(&probe)));
    QCOMPARE(record.take(), QByteArray("firstList()"));
    table.setOption(&probe, longText);
    QCOMPARE(record.take(), "setOption(" + describe(longText) + ")");
    QVERIFY(sameRecords(table.secondList(&probe)));
    QCOMPARE(record.take(), QByteArray("secondList()"));
    QCOMPARE(table.configure(&probe, {{0, "0 - 2"}, {0xFFFFFFFFU, longText}}, 0x1122334455667788U), false);
    QCOMPARE(record.take(), R"(configure({0 "0 - 2"}{4294967295 )" + describe(longText) + "}, 1234605616436508552)");
}

void TestSlotOrder::callsTheOtherSlotsOfATest()
{
    QCOMPARE(slotsOf(&Test::firstFlag, &Test::secondFlag, &Test::thirdFlag, &Test::fourthFlag, &Test::reset),
             QList<qsizetype>({3, 4, 8, 9, 11}));
    CallRecord record;
    TestProbe probe(record);
    const auto table = tableOf<TestTable>(&probe);
    QCOMPARE(table.firstFlag(&probe), true);
    QCOMPARE(record.take(), QByteArray("firstFlag()"));
    QCOMPARE(table.secondFlag(&probe), true);
    QCOMPARE(record.take(), QByteArray("secondFlag()"));
    QCOMPARE(table.thirdFlag(&probe), false);
    QCOMPARE(record.take(), QByteArray("thirdFlag()"));
    QCOMPARE(table.fourthFlag(&probe), false);
    QCOMPARE(record.take(), QByteArray("fourthFlag()"));
    table.reset(&probe);
    QCOMPARE(record.take(), QByteArray("reset()"));
}

void TestSlotOrder::callsTheSlotsOfTheResourceByIdentity()
{
    using R = Resource;
    QCOMPARE(slotsOf(&R::handle, &R::diagnosticName, &R::testName, &R::diagnosticDescription, &R::testDescription),
             slotsUpTo(5));
    CallRecord record;
    const ResourceProbe probe(record);
    const auto table = tableOf<ResourceTable>(&probe);
    QCOMPARE(table.diagnosticName(&probe, someIdentity), longText);
    QCOMPARE(record.take(), "diagnosticName(" + identityText + ")");
    QCOMPARE(table.testName(&probe, someIdentity), longText);
    QCOMPARE(record.take(), "testName(" + identityText + ")");
    QCOMPARE(table.diagnosticDescription(&probe, someIdentity), longText);
    QCOMPARE(record.take(), "diagnosticDescription(" + identityText + ")");
    QCOMPARE(table.testDescription(&probe, someIdentity), longText);
    QCOMPARE(record.take(), "testDescription(" + identityText + ")");
}

void TestSlotOrder::callsTheOtherSlotsOfTheResource()
{
    using R = Resource;
    QCOMPARE(slotsOf(&R::handle, &R::helpText, &R::secondText, &R::thirdText, &R::testNames, &R::diagnosticNames,
                     &R::parameterTableView, &R::setParameterTable),
             QList<qsizetype>({1, 6, 7, 8, 9, 10, 11, 12}));
    CallRecord record;
    ResourceProbe probe(record);
    const auto table = tableOf<ResourceTable>(&probe);
    QCOMPARE(table.handle(&probe), std::uintptr_t{0x1122334455667701});
    QCOMPARE(record.take(), QByteArray("handle()"));
    QCOMPARE(table.helpText(&probe), longText + "6");
    QCOMPARE(record.take(), QByteArray("helpText()"));
    QCOMPARE(table.secondText(&probe), longText + "7");
    QCOMPARE(record.take(), QByteArray("secondText()"));
    QCOMPARE(table.thirdText(&probe), longText + "8");
    QCOMPARE(record.take(), QByteArray("thirdText()"));
    QVERIFY(table.testNames(&probe).at(someIdentity) == std::vector<std::string>{"9"});
    QCOMPARE(record.take(), QByteArray("testNames()"));
    QVERIFY(table.diagnosticNames(&probe).at(someIdentity) == std::vector<std::string>{"10"});
    QCOMPARE(record.take(), QByteArray("diagnosticNames()"));
    QCOMPARE(table.parameterTableView(&probe).at(11), longText);
    QCOMPARE(record.take(), QByteArray("parameterTableView()"));
    table.setParameterTable(&probe, {{12, longText}});
    QCOMPARE(record.take(), "setParameterTable({12 " + describe(longText) + "})");
}

void TestSlotOrder::callsEverySlotOfTheComponentManager()
{
    using M = SystemComponentManager;
    QCOMPARE(slotsOf(&M::id, &M::componentCount, &M::componentAt, &M::hasComponents, &M::hintedComponentAt, &M::refresh),
             slotsUpTo(6));
    CallRecord record;
    ManagerProbe probe(record);
    const auto table = tableOf<ManagerTable>(&probe);
    QCOMPARE(describe(table.id(&probe)), identityText);
    QCOMPARE(record.take(), QByteArray("id()"));
    QCOMPARE(table.componentCount(&probe), std::uint64_t{0x1122334455667702});
    QCOMPARE(record.take(), QByteArray("componentCount()"));
    QCOMPARE(table.componentAt(&probe, bigIndex), addressOf<SystemComponent>(3));
    QCOMPARE(record.take(), "componentAt(" + bigIndexText + ")");
    QCOMPARE(table.hasComponents(&probe), true);
    QCOMPARE(record.take(), QByteArray("hasComponents()"));
    QCOMPARE(table.hintedComponentAt(&probe, bigIndex), addressOf<SystemComponent>(5));
    QCOMPARE(record.take(), "hintedComponentAt(" + bigIndexText + ")");
    table.refresh(&probe);
    QCOMPARE(record.take(), QByteArray("refresh()"));
}

void TestSlotOrder::callsEverySlotOfAComponent()
{
    using C = SystemComponent;
    QCOMPARE(slotsOf(&C::name, &C::info, &C::subComponents, &C::reserved4, &C::reserved5, &C::reserved6, &C::reserved7,
                     &C::reserved8, &C::reserved9, &C::reserved10),
             slotsUpTo(10));
    CallRecord record;
    ComponentProbe probe(record);
    const auto table = tableOf<ComponentTable>(&probe);
    QCOMPARE(table.name(&probe), longText);
    QCOMPARE(record.take(), QByteArray("name()"));
    const SystemComponentInfo info = table.info(&probe);
    QCOMPARE(record.take(), QByteArray("info()"));
    QVERIFY(info.id == longText && info.secondText == "second" && info.properties == PropertyList({{"key", longText}}));
    QCOMPARE(info.attributes.at("attribute"), std::string("value"));
    QVERIFY(sameRecords(table.subComponents(&probe)));
    QCOMPARE(record.take(), QByteArray("subComponents()"));
    QCOMPARE(table.reserved4(&probe), addressOf<void>(4));
    QVERIFY(table.reserved5(&probe) && !table.reserved6(&probe));
    QCOMPARE(record.take(), QByteArray("reserved4(); reserved5(); reserved6()"));
    table.reserved7(&probe);
    QVERIFY(table.reserved8(&probe));
    table.reserved9(&probe);
    table.reserved10(&probe);
    QCOMPARE(record.take(), QByteArray("reserved7(); reserved8(); reserved9(); reserved10()"));
}

void TestSlotOrder::callsEverySlotOfAWidgetWrapper()
{
    QCOMPARE(slotsOf(&AbstractWidgetWrapper::exec), slotsUpTo(1));
    CallRecord record;
    WrapperProbe probe(record);
    QCOMPARE(tableOf<WrapperTable>(&probe).exec(&probe, addressOf<QWidget>(1), addressOf<QObject>(2)), -1);
    QCOMPARE(record.take(), QByteArray("exec(0x7abc00000010, 0x7abc00000020)"));
}

void TestSlotOrder::destroysThroughSlotZero_data()
{
    QTest::addColumn<QByteArray>("noted");
    QTest::newRow("ModuleInterface") << destroyedThroughBothEntries<ModuleInterfaceProbe>();
    QTest::newRow("ProductVersion") << destroyedThroughBothEntries<ProductVersionProbe>();
    QTest::newRow("Diagnostic") << destroyedThroughBothEntries<DiagnosticProbe>();
    QTest::newRow("Test") << destroyedThroughBothEntries<TestProbe>();
    QTest::newRow("Resource") << destroyedThroughBothEntries<ResourceProbe>();
    QTest::newRow("SystemComponentManager") << destroyedThroughBothEntries<ManagerProbe>();
    QTest::newRow("SystemComponent") << destroyedThroughBothEntries<ComponentProbe>();
    QTest::newRow("AbstractWidgetWrapper") << destroyedThroughBothEntries<WrapperProbe>();
    QTest::newRow("InputRequest") << destroyedThroughBothEntries<RequestProbe>();
}

void TestSlotOrder::destroysThroughSlotZero()
{
    QFETCH(QByteArray, noted);
    QCOMPARE(noted, twoDestructions());
}

QTEST_GUILESS_MAIN(TestSlotOrder)
#include "tst_slot_order.moc"
