// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace ostra {

/// Keeps this library's code mapped until the process ends, whatever the host unloads: objects that Qt or the host still
/// hold (a screen reader's interface, a widget that lives below a host window) have their code here. Harmless when called
/// again; a failure is silent.
void pinLibrary() noexcept;

} // namespace ostra
