// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/entity_id.h"

#include <string>
#include <vector>

namespace ostra {
class ModuleInterface;
} // namespace ostra

namespace host {

/// What a test or a diagnostic is called.
struct CatalogueNames {
    std::string nameKey; ///< key of the display name, to be translated by the host
    std::string descriptionKey;
    std::vector<std::string> commandLineNames; ///< the letter first
};

struct CatalogueTest {
    ostra::EntityId id;
    CatalogueNames names;
};

struct CatalogueDiagnostic {
    ostra::EntityId id;
    CatalogueNames names;
    std::vector<CatalogueTest> tests;
};

/// Copy of the names of all that a module offers, in the module's order; it outlives the module.
using Catalogue = std::vector<CatalogueDiagnostic>;

Catalogue readCatalogue(const ostra::ModuleInterface &module);

} // namespace host
