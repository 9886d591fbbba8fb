// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace ostra {

/// Element of every list whose element type the host keeps to itself. Three machine words; this module neither makes nor
/// reads one, it only carries empty lists of them.
struct OpaqueRecord {
    void *first = nullptr;  ///< a machine word
    void *second = nullptr; ///< a machine word
    void *third = nullptr;  ///< a machine word
};

} // namespace ostra
