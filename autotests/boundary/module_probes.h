// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "slot_table.h"

#include "contract/abstract_widget_wrapper.h"
#include "contract/input_request.h"
#include "contract/module_interface.h"
#include "contract/product_version.h"

#include <cstdint>
#include <string>
#include <vector>

/// Probes and plain tables of the classes that the module implements. A table is written in slot order by hand, from
/// docs/boundary.md, and a probe answers with values that tell its operations apart.
namespace boundary {

inline const ostra::EntityId someIdentity{0xFEDC, 0xABCDEF, 0x123456};
/// Too long for the small-text buffer, so that it crosses as allocated memory.
inline const std::string longText = "a text that is longer than what a string keeps inside itself";
inline const std::vector<ostra::OpaqueRecord> someRecords{{addressOf<void>(71), addressOf<void>(72), addressOf<void>(73)}};

struct ModuleInterfaceTable {
    Destructor destroy;
    Destructor destroyAndFree;
    ostra::Diagnostic *(*diagnosticAt)(const void *, std::uint32_t);
    std::uint64_t (*diagnosticCount)(const void *);
    ostra::Resource *(*resource)(const void *);
    ostra::SystemComponentManager *(*componentManager)(const void *);
    void *(*additionalItemAt)(const void *, std::uint32_t);
    std::uint64_t (*additionalItemCount)(const void *);
    void *(*auxiliary)(const void *);
    bool (*requiresInteraction)(const void *);
};

class ModuleInterfaceProbe final : public Probe<ostra::ModuleInterface> {
public:
    explicit ModuleInterfaceProbe(CallRecord &record)
        : Probe(record, std::vector<ostra::Diagnostic *>{}, nullptr, nullptr, nullptr)
    {}
    ostra::Diagnostic *diagnosticAt(std::uint32_t index) const override
    {
        record().note("diagnosticAt", index);
        return addressOf<ostra::Diagnostic>(1);
    }
    std::uint64_t diagnosticCount() const override { return record().note("diagnosticCount"), 0x1122334455667702U; }
    ostra::Resource *resource() const override { return record().note("resource"), addressOf<ostra::Resource>(3); }
    ostra::SystemComponentManager *componentManager() const override
    {
        record().note("componentManager");
        return addressOf<ostra::SystemComponentManager>(4);
    }
    void *additionalItemAt(std::uint32_t index) const override
    {
        record().note("additionalItemAt", index);
        return addressOf<void>(5);
    }
    std::uint64_t additionalItemCount() const override { return record().note("additionalItemCount"), 0x1122334455667706U; }
    void *auxiliary() const override { return record().note("auxiliary"), addressOf<void>(7); }
    bool requiresInteraction() const override { return record().note("requiresInteraction"), true; }
};

struct ProductVersionTable {
    Destructor destroy;
    Destructor destroyAndFree;
    std::uint32_t (*majorNumber)(const void *);
    std::uint32_t (*minorNumber)(const void *);
    std::uint32_t (*build)(const void *);
    std::uint32_t (*revision)(const void *);
};

class ProductVersionProbe final : public Probe<ostra::ProductVersion> {
public:
    explicit ProductVersionProbe(CallRecord &record) : Probe(record, 0U, 0U, 0U, 0U) {}
    std::uint32_t major() const noexcept override { return record().note("major"), 0xF0000001U; }
    std::uint32_t minor() const noexcept override { return record().note("minor"), 0xF0000002U; }
    std::uint32_t build() const noexcept override { return record().note("build"), 0xF0000003U; }
    std::uint32_t revision() const noexcept override { return record().note("revision"), 0xF0000004U; }
};

struct DiagnosticTable {
    Destructor destroy;
    Destructor destroyAndFree;
    ostra::EntityId (*id)(const void *);
    std::uint64_t (*testCount)(const void *);
    ostra::Test *(*testAt)(const void *, std::uint32_t);
    ostra::Test *(*findTest)(const void *, ostra::EntityId);
};

class DiagnosticProbe final : public Probe<ostra::Diagnostic> {
public:
    explicit DiagnosticProbe(CallRecord &record) : Probe(record, ostra::EntityId{0, 0, 0}, std::vector<ostra::Test *>{}) {}
    ostra::EntityId id() const override { return record().note("id"), someIdentity; }
    std::uint64_t testCount() const override { return record().note("testCount"), 0x1122334455667702U; }
    ostra::Test *testAt(std::uint32_t index) const override
    {
        return record().note("testAt", index), addressOf<ostra::Test>(3);
    }
    ostra::Test *findTest(ostra::EntityId id) const override
    {
        return record().note("findTest", id), addressOf<ostra::Test>(4);
    }
};

struct TestTable {
    Destructor destroy;
    Destructor destroyAndFree;
    bool (*isSupported)(void *, ostra::SystemComponent *);
    std::uint32_t (*run)(void *, ostra::TestContext *);
    bool (*firstFlag)(void *);
    bool (*secondFlag)(void *);
    std::vector<ostra::OpaqueRecord> (*firstList)(void *);
    void (*setOption)(void *, std::string);
    std::vector<ostra::OpaqueRecord> (*secondList)(void *);
    bool (*thirdFlag)(void *);
    bool (*fourthFlag)(void *);
    bool (*configure)(void *, ostra::ParameterTable, std::uint64_t);
    void (*reset)(void *);
};

class TestProbe final : public Probe<ostra::Test> {
public:
    explicit TestProbe(CallRecord &record) : Probe(record, someIdentity) {}
    bool isSupported(ostra::SystemComponent *component) override { return record().note("isSupported", component), true; }
    std::uint32_t run(ostra::TestContext *context) override { return record().note("run", context), 0xF0000002U; }
    bool firstFlag() override { return record().note("firstFlag"), true; }
    bool secondFlag() override { return record().note("secondFlag"), true; }
    std::vector<ostra::OpaqueRecord> firstList() override { return record().note("firstList"), someRecords; }
    void setOption(std::string text) override { record().note("setOption", text); }
    std::vector<ostra::OpaqueRecord> secondList() override { return record().note("secondList"), someRecords; }
    bool thirdFlag() override { return record().note("thirdFlag"), false; }
    bool fourthFlag() override { return record().note("fourthFlag"), false; }
    bool configure(ostra::ParameterTable table, std::uint64_t value) override
    {
        record().note("configure", table, value);
        return false;
    }
    void reset() override { record().note("reset"); }
};

struct ResourceTable {
    Destructor destroy;
    Destructor destroyAndFree;
    std::uintptr_t (*handle)(const void *);
    std::string (*diagnosticName)(const void *, ostra::EntityId);
    std::string (*testName)(const void *, ostra::EntityId);
    std::string (*diagnosticDescription)(const void *, ostra::EntityId);
    std::string (*testDescription)(const void *, ostra::EntityId);
    std::string (*helpText)(const void *);
    std::string (*secondText)(const void *);
    std::string (*thirdText)(const void *);
    ostra::NameTable (*testNames)(const void *);
    ostra::NameTable (*diagnosticNames)(const void *);
    ostra::ParameterTable (*parameterTableView)(const void *);
    void (*setParameterTable)(void *, const ostra::ParameterTable &);
};

class ResourceProbe final : public Probe<ostra::Resource> {
public:
    explicit ResourceProbe(CallRecord &record) : Probe(record, someIdentity) {}
    std::uintptr_t handle() const override { return record().note("handle"), std::uintptr_t{0x1122334455667701}; }
    std::string diagnosticName(ostra::EntityId id) const override { return answer("diagnosticName", id); }
    std::string testName(ostra::EntityId id) const override { return answer("testName", id); }
    std::string diagnosticDescription(ostra::EntityId id) const override { return answer("diagnosticDescription", id); }
    std::string testDescription(ostra::EntityId id) const override { return answer("testDescription", id); }
    std::string helpText() const override { return record().note("helpText"), longText + "6"; }
    std::string secondText() const override { return record().note("secondText"), longText + "7"; }
    std::string thirdText() const override { return record().note("thirdText"), longText + "8"; }
    ostra::NameTable testNames() const override { return record().note("testNames"), ostra::NameTable{{someIdentity, {"9"}}}; }
    ostra::NameTable diagnosticNames() const override
    {
        record().note("diagnosticNames");
        return {{someIdentity, {"10"}}};
    }
    ostra::ParameterTable parameterTableView() const override
    {
        record().note("parameterTableView");
        return {{11, longText}};
    }
    void setParameterTable(const ostra::ParameterTable &table) override { record().note("setParameterTable", table); }

private:
    std::string answer(const char *operation, const ostra::EntityId &id) const
    {
        return record().note(operation, id), longText;
    }
};

struct ManagerTable {
    Destructor destroy;
    Destructor destroyAndFree;
    ostra::EntityId (*id)(const void *);
    std::uint64_t (*componentCount)(const void *);
    ostra::SystemComponent *(*componentAt)(const void *, std::uint32_t);
    bool (*hasComponents)(void *);
    ostra::SystemComponent *(*hintedComponentAt)(void *, std::uint32_t);
    void (*refresh)(void *);
};

class ManagerProbe final : public Probe<ostra::SystemComponentManager> {
public:
    explicit ManagerProbe(CallRecord &record) : Probe(record, ostra::EntityId{0, 0, 0}) {}
    ostra::EntityId id() const override { return record().note("id"), someIdentity; }
    std::uint64_t componentCount() const override { return record().note("componentCount"), 0x1122334455667702U; }
    ostra::SystemComponent *componentAt(std::uint32_t index) const override
    {
        record().note("componentAt", index);
        return addressOf<ostra::SystemComponent>(3);
    }
    bool hasComponents() override { return record().note("hasComponents"), true; }
    ostra::SystemComponent *hintedComponentAt(std::uint32_t index) override
    {
        record().note("hintedComponentAt", index);
        return addressOf<ostra::SystemComponent>(5);
    }
    void refresh() override { record().note("refresh"); }
};

struct ComponentTable {
    Destructor destroy;
    Destructor destroyAndFree;
    std::string (*name)(const void *);
    ostra::SystemComponentInfo (*info)(const void *);
    std::vector<ostra::OpaqueRecord> (*subComponents)(const void *);
    void *(*reserved4)(void *);
    bool (*reserved5)(void *);
    bool (*reserved6)(void *);
    void (*reserved7)(void *);
    bool (*reserved8)(void *);
    void (*reserved9)(void *);
    void (*reserved10)(void *);
};

class ComponentProbe final : public Probe<ostra::SystemComponent> {
public:
    explicit ComponentProbe(CallRecord &record) : Probe(record, "a device") {}
    std::string name() const override { return record().note("name"), longText; }
    ostra::SystemComponentInfo info() const override
    {
        record().note("info");
        return {longText, "second", {{"key", longText}}, {{"attribute", "value"}}};
    }
    std::vector<ostra::OpaqueRecord> subComponents() const override { return record().note("subComponents"), someRecords; }
    void *reserved4() override { return record().note("reserved4"), addressOf<void>(4); }
    bool reserved5() override { return record().note("reserved5"), true; }
    bool reserved6() override { return record().note("reserved6"), false; }
    void reserved7() override { record().note("reserved7"); }
    bool reserved8() override { return record().note("reserved8"), true; }
    void reserved9() override { record().note("reserved9"); }
    void reserved10() override { record().note("reserved10"); }
};

struct WrapperTable {
    Destructor destroy;
    Destructor destroyAndFree;
    int (*exec)(void *, QWidget *, QObject *);
};

class WrapperProbe final : public Probe<ostra::AbstractWidgetWrapper> {
public:
    explicit WrapperProbe(CallRecord &record) : Probe(record) {}
    int exec(QWidget *parent, QObject *argument) override { return record().note("exec", parent, argument), -1; }
};

/// Has a destructor only, which the base of the probes notes.
class RequestProbe final : public Probe<ostra::InputRequest> {
public:
    explicit RequestProbe(CallRecord &record) : Probe(record, longText, longText, 1U, 2U, 3U) {}
};

} // namespace boundary
