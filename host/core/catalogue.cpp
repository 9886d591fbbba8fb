// SPDX-License-Identifier: Apache-2.0
#include "host/core/catalogue.h"

#include "contract/module_interface.h"

#include <cstdint>

namespace host {

namespace {

std::vector<std::string> namesOf(const ostra::NameTable &table, const ostra::EntityId &id)
{
    const auto found = table.find(id);
    return found != table.end() ? found->second : std::vector<std::string>{};
}

std::vector<CatalogueTest> readTests(const ostra::Diagnostic &diagnostic, const ostra::Resource &resource)
{
    const ostra::NameTable names = resource.testNames();
    std::vector<CatalogueTest> tests;
    for (std::uint32_t index = 0; index < diagnostic.testCount(); ++index) {
        const ostra::Test *test = diagnostic.testAt(index);
        if (test == nullptr)
            continue;
        const ostra::EntityId id = test->identity();
        tests.push_back({id, {resource.testName(id), resource.testDescription(id), namesOf(names, id)}});
    }
    return tests;
}

} // namespace

Catalogue readCatalogue(const ostra::ModuleInterface &module)
{
    Catalogue catalogue;
    const ostra::Resource *resource = module.resource();
    if (resource == nullptr)
        return catalogue;
    const ostra::NameTable names = resource->diagnosticNames();
    for (std::uint32_t index = 0; index < module.diagnosticCount(); ++index) {
        const ostra::Diagnostic *diagnostic = module.diagnosticAt(index);
        if (diagnostic == nullptr)
            continue;
        const ostra::EntityId id = diagnostic->id();
        catalogue.push_back({id,
                             {resource->diagnosticName(id), resource->diagnosticDescription(id), namesOf(names, id)},
                             readTests(*diagnostic, *resource)});
    }
    return catalogue;
}

} // namespace host
