// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace ostra {

/// Registers the views' types with Qt's meta-type system, where they are found by name. The module's entry calls it; calling
/// it again does nothing. Any thread.
void registerViewTypes();

} // namespace ostra
