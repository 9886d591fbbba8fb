// SPDX-License-Identifier: Apache-2.0
#include "host/core/catalogue.h"

#include "contract/module_interface.h"

#include <QObject>
#include <QTest>

#include <string>
#include <vector>

namespace {

constexpr ostra::EntityId group{15, 1, 0};
constexpr ostra::EntityId firstTest{15, 1, 2};
constexpr ostra::EntityId secondTest{15, 1, 1};

class StubTest final : public ostra::Test {
public:
    using Test::Test;
    bool isSupported(ostra::SystemComponent * /*component*/) override { return true; }
    std::uint32_t run(ostra::TestContext * /*context*/) override { return 0; }
    bool firstFlag() override { return true; }
};

class StubResource final : public ostra::Resource {
public:
    StubResource() : Resource(ostra::identities::resource)
    {
        addDiagnosticNames(group, {"G", "group"});
        addTestNames(secondTest, {"s", "second"});
    }
    std::string diagnosticName(ostra::EntityId id) const override { return "NAME_" + std::to_string(id.index); }
    std::string testName(ostra::EntityId id) const override { return "TEST_" + std::to_string(id.index); }
    std::string diagnosticDescription(ostra::EntityId id) const override { return "ABOUT_" + std::to_string(id.index); }
    std::string testDescription(ostra::EntityId id) const override { return "ABOUT_TEST_" + std::to_string(id.index); }
};

} // namespace

class TestCatalogue : public QObject {
    Q_OBJECT

private slots:
    void copiesNamesInTheModulesOrder();
    void isEmptyWithoutAResource();
};

void TestCatalogue::copiesNamesInTheModulesOrder()
{
    StubTest first(firstTest);
    StubTest second(secondTest);
    ostra::Diagnostic diagnostic(group, {&first, nullptr, &second});
    StubResource resource;
    const ostra::ModuleInterface module({nullptr, &diagnostic}, &resource, nullptr, nullptr);

    const host::Catalogue catalogue = host::readCatalogue(module);
    QCOMPARE(catalogue.size(), std::size_t{1});
    QVERIFY(catalogue[0].id == group);
    QCOMPARE(catalogue[0].names.nameKey, std::string("NAME_0"));
    QCOMPARE(catalogue[0].names.descriptionKey, std::string("ABOUT_0"));
    QCOMPARE(catalogue[0].names.commandLineNames, (std::vector<std::string>{"G", "group"}));
    QCOMPARE(catalogue[0].tests.size(), std::size_t{2});
    QVERIFY(catalogue[0].tests[0].id == firstTest);
    QVERIFY(catalogue[0].tests[0].names.commandLineNames.empty()); // the table has none for it
    QCOMPARE(catalogue[0].tests[1].names.nameKey, std::string("TEST_1"));
    QCOMPARE(catalogue[0].tests[1].names.descriptionKey, std::string("ABOUT_TEST_1"));
    QCOMPARE(catalogue[0].tests[1].names.commandLineNames, (std::vector<std::string>{"s", "second"}));
}

void TestCatalogue::isEmptyWithoutAResource()
{
    ostra::Diagnostic diagnostic(group, {});
    QVERIFY(host::readCatalogue(ostra::ModuleInterface({&diagnostic}, nullptr, nullptr, nullptr)).empty());
}

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
