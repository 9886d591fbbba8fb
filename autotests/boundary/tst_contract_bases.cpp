// SPDX-License-Identifier: Apache-2.0
#include "contract/diagnostic.h"
#include "contract/input_request.h"
#include "contract/module_interface.h"
#include "contract/resource.h"
#include "contract/system_component.h"
#include "contract/system_component_manager.h"
#include "contract/test.h"

#include <QObject>
#include <QTest>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

using namespace ostra;

namespace {

class PlainTest final : public Test {
public:
    using Test::Test;
    bool isSupported(SystemComponent *) override { return false; }
    std::uint32_t run(TestContext *) override { return 0; }
    bool firstFlag() override { return false; }
};

class PlainResource final : public Resource {
public:
    using Resource::addDiagnosticNames;
    using Resource::addTestNames;
    using Resource::Resource;
    using Resource::setHelpText;
    std::string diagnosticName(EntityId) const override { return {}; }
    std::string testName(EntityId) const override { return {}; }
    std::string diagnosticDescription(EntityId) const override { return {}; }
    std::string testDescription(EntityId) const override { return {}; }
};

class PlainComponent final : public SystemComponent {
public:
    using SystemComponent::properties;
    using SystemComponent::setId;
    using SystemComponent::SystemComponent;
    void *reserved4() override { return nullptr; }
    bool reserved5() override { return true; }
    bool reserved6() override { return true; }
    void reserved7() override {}
    bool reserved8() override { return true; }
    void reserved9() override {}
};

class PlainManager final : public SystemComponentManager {
public:
    using SystemComponentManager::components;
    using SystemComponentManager::SystemComponentManager;
    bool hasComponents() override { return false; }
    SystemComponent *hintedComponentAt(std::uint32_t) override { return nullptr; }
    void refresh() override {}
};

const std::vector<std::uint32_t> indicesPastTwo{2, 3, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};

} // namespace

/// What the base classes of the boundary answer by themselves.
class TestContractBases : public QObject {
    Q_OBJECT

private slots:
    void testAnswersItsDefaults();
    void diagnosticListsTestsInOrder();
    void diagnosticFindsTheFirstTestWithTheKey();
    void diagnosticWithoutTestsFindsNothing();
    void moduleInterfaceCarriesWhatItWasGiven();
    void moduleInterfaceAnswersNullOutOfRange();
    void resourceStartsEmpty();
    void resourceGivesCopiesOfItsNames();
    void resourceReplacesItsParameterTable();
    void resourceKeepsItsOwnParameterTable();
    void componentTellsWhatWasPutIn();
    void managerListsItsComponents();
    void requestTakesItsTextsOver();
};

void TestContractBases::testAnswersItsDefaults()
{
    PlainTest test(EntityId(1, 2, 3));
    QCOMPARE(test.identity().key, std::uint64_t{0x0001000002000003});
    QCOMPARE(test.secondFlag(), false);
    QCOMPARE(test.firstList().size(), std::size_t{0});
    test.setOption("anything");
    QCOMPARE(test.secondList().size(), std::size_t{0});
    QCOMPARE(test.thirdFlag(), true);
    QCOMPARE(test.fourthFlag(), true);
    QCOMPARE(test.configure({{1, "one"}}, 2), true);
    QCOMPARE(test.configure({}, 0), true);
    test.reset();
    QCOMPARE(test.identity().key, std::uint64_t{0x0001000002000003});
}

void TestContractBases::diagnosticListsTestsInOrder()
{
    PlainTest playback(identities::audioPlaybackTest);
    PlainTest microphone(identities::microphoneInteractiveTest);
    const Diagnostic diagnostic(identities::audioDiagnostic, {&playback, &microphone});
    QCOMPARE(diagnostic.id().key, std::uint64_t{0x000F000001000000});
    QCOMPARE(diagnostic.testCount(), std::uint64_t{2});
    QCOMPARE(diagnostic.testAt(0), static_cast<Test *>(&playback));
    QCOMPARE(diagnostic.testAt(1), static_cast<Test *>(&microphone));
    for (const auto index : indicesPastTwo)
        QVERIFY2(diagnostic.testAt(index) == nullptr, qPrintable(QString::number(index)));
}

void TestContractBases::diagnosticFindsTheFirstTestWithTheKey()
{
    PlainTest playback(EntityId(15, 1, 1));
    PlainTest microphone(EntityId(15, 1, 2));
    PlainTest sameKey(EntityId(15, 0x01000001, 2));
    const Diagnostic diagnostic(identities::audioDiagnostic, {&playback, &microphone, &sameKey});
    QCOMPARE(diagnostic.findTest(EntityId(15, 1, 1)), static_cast<Test *>(&playback));
    QCOMPARE(diagnostic.findTest(EntityId(15, 1, 2)), static_cast<Test *>(&microphone));
    QCOMPARE(diagnostic.findTest(EntityId(15, 0x01000001, 2)), static_cast<Test *>(&microphone));
    QVERIFY(diagnostic.findTest(EntityId(15, 1, 3)) == nullptr);
    EntityId onlyFields(15, 1, 2);
    onlyFields.key = 0;
    QVERIFY(diagnostic.findTest(onlyFields) == nullptr);
}

void TestContractBases::diagnosticWithoutTestsFindsNothing()
{
    const Diagnostic diagnostic(identities::audioDiagnostic, {});
    QCOMPARE(diagnostic.testCount(), std::uint64_t{0});
    QVERIFY(diagnostic.testAt(0) == nullptr);
    QVERIFY(diagnostic.findTest(EntityId(15, 1, 1)) == nullptr);
}

void TestContractBases::moduleInterfaceCarriesWhatItWasGiven()
{
    Diagnostic first(identities::audioDiagnostic, {});
    Diagnostic second(identities::audioDiagnostic, {});
    PlainResource resource(identities::resource);
    PlainManager manager(identities::componentManager);
    int auxiliary = 0;
    const ModuleInterface module({&first, &second}, &resource, &manager, &auxiliary);
    QCOMPARE(module.diagnosticCount(), std::uint64_t{2});
    QCOMPARE(module.diagnosticAt(0), &first);
    QCOMPARE(module.diagnosticAt(1), &second);
    QCOMPARE(module.resource(), static_cast<Resource *>(&resource));
    QCOMPARE(module.componentManager(), static_cast<SystemComponentManager *>(&manager));
    QCOMPARE(module.auxiliary(), static_cast<void *>(&auxiliary));
    QCOMPARE(module.requiresInteraction(), false);
}

void TestContractBases::moduleInterfaceAnswersNullOutOfRange()
{
    Diagnostic diagnostic(identities::audioDiagnostic, {});
    const ModuleInterface module({&diagnostic, &diagnostic}, nullptr, nullptr, nullptr);
    for (const auto index : indicesPastTwo)
        QVERIFY2(module.diagnosticAt(index) == nullptr, qPrintable(QString::number(index)));
    QCOMPARE(module.additionalItemCount(), std::uint64_t{0});
    QVERIFY(module.additionalItemAt(0) == nullptr && module.additionalItemAt(0xFFFFFFFF) == nullptr);
    QVERIFY(module.resource() == nullptr && module.componentManager() == nullptr && module.auxiliary() == nullptr);
}

void TestContractBases::resourceStartsEmpty()
{
    const PlainResource resource(identities::resource);
    QCOMPARE(resource.identity().key, std::uint64_t{0x000F000000000000});
    QCOMPARE(resource.handle(), std::uintptr_t{0});
    QVERIFY(resource.helpText().empty() && resource.secondText().empty() && resource.thirdText().empty());
    QVERIFY(resource.testNames().empty() && resource.diagnosticNames().empty());
    QVERIFY(resource.parameterTable().empty() && resource.parameterTableView().empty());
}

void TestContractBases::resourceGivesCopiesOfItsNames()
{
    PlainResource resource(identities::resource);
    resource.setHelpText("help");
    resource.addTestNames(EntityId(15, 1, 2), {"m", "microphone"});
    resource.addTestNames(EntityId(15, 1, 1), {"p", "playback"});
    resource.addTestNames(EntityId(15, 0x01000001, 1), {"same", "key"});
    resource.addDiagnosticNames(EntityId(15, 1, 0), {"Q", "quick"});
    QCOMPARE(resource.helpText(), std::string("help"));
    NameTable names = resource.testNames();
    QCOMPARE(names.size(), std::size_t{2});
    QCOMPARE(names.begin()->first.key, std::uint64_t{0x000F000001000001});
    QVERIFY(names.begin()->second == std::vector<std::string>({"p", "playback"}));
    names.clear();
    QCOMPARE(resource.testNames().size(), std::size_t{2});
    QVERIFY(resource.diagnosticNames().at(EntityId(15, 1, 0)) == std::vector<std::string>({"Q", "quick"}));
}

void TestContractBases::resourceReplacesItsParameterTable()
{
    PlainResource resource(identities::resource);
    resource.setParameterTable({{7, "seven"}, {0, "none"}});
    ParameterTable table{{0, "0 - 2"}, {1, ""}, {2, ""}};
    resource.setParameterTable(table);
    table[0] = "changed afterwards";
    QVERIFY(resource.parameterTable() == ParameterTable({{0, "0 - 2"}, {1, ""}, {2, ""}}));
    QVERIFY(resource.parameterTableView().empty());
}

void TestContractBases::resourceKeepsItsOwnParameterTable()
{
    PlainResource resource(identities::resource);
    resource.setParameterTable({{0, "0 - 2"}, {1, ""}});
    resource.setParameterTable(resource.parameterTable());
    QVERIFY(resource.parameterTable() == ParameterTable({{0, "0 - 2"}, {1, ""}}));
}

void TestContractBases::componentTellsWhatWasPutIn()
{
    PlainComponent component("Speakers \xC3\xA9");
    QCOMPARE(component.name(), std::string("Speakers \xC3\xA9"));
    QVERIFY(component.info().id.empty() && component.info().properties.empty());
    component.setId("an id");
    component.properties() = {{"b", "1"}, {"a", "2"}, {"b", "3"}};
    const SystemComponentInfo info = component.info();
    QCOMPARE(info.id, std::string("an id"));
    QVERIFY(info.secondText.empty() && info.attributes.empty());
    QVERIFY(info.properties == PropertyList({{"b", "1"}, {"a", "2"}, {"b", "3"}}));
    QVERIFY(component.subComponents().empty());
    component.reserved10();
    QCOMPARE(component.info().id, std::string("an id"));
}

void TestContractBases::managerListsItsComponents()
{
    PlainManager manager(identities::componentManager);
    QCOMPARE(manager.id().key, std::uint64_t{0x000F000000000000});
    QCOMPARE(manager.componentCount(), std::uint64_t{0});
    QVERIFY(manager.componentAt(0) == nullptr && manager.componentAt(0xFFFFFFFF) == nullptr);
    PlainComponent first("first");
    PlainComponent second("second");
    manager.components() = {&first, &second};
    QCOMPARE(manager.componentCount(), std::uint64_t{2});
    QCOMPARE(manager.componentAt(0), static_cast<SystemComponent *>(&first));
    QCOMPARE(manager.componentAt(1), static_cast<SystemComponent *>(&second));
    for (const auto index : indicesPastTwo)
        QVERIFY2(manager.componentAt(index) == nullptr, qPrintable(QString::number(index)));
}

void TestContractBases::requestTakesItsTextsOver()
{
    std::string title(100, 't');
    std::string text(100, 'b');
    const char *titleBytes = title.data();
    const char *textBytes = text.data();
    const InputRequest request(std::move(title), std::move(text), 5, 2, 0xFFFFFFFF);
    QVERIFY(request.title.data() == titleBytes && request.text.data() == textBytes);
    QCOMPARE(request.title, std::string(100, 't'));
    QCOMPARE(request.text, std::string(100, 'b'));
    QCOMPARE(request.firstOption, 5U);
    QCOMPARE(request.secondOption, 2U);
    QCOMPARE(request.thirdOption, 0xFFFFFFFFU);
    QVERIFY(request.widget == nullptr && request.choices.empty());
    QCOMPARE(request.answer, 0U);
    QCOMPARE(request.extra, std::uintptr_t{0});
}

QTEST_GUILESS_MAIN(TestContractBases)
#include "tst_contract_bases.moc"
