// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/module_interface.h"
#include "contract/product_version.h"

/// The library's whole surface: three functions with C linkage and the platform's C calling convention. None of them throws.
/// The first two must be called on one thread (the host's main thread), never concurrently; the third on any.
extern "C" {

/// The module interface, built on the first call; later calls return the same pointer until it is released. Null when there
/// was no memory for it; the sound layer is then untouched. Never freed by the host.
using GetModuleInterfaceInstanceFunction = ostra::ModuleInterface *();

/// Destroys everything that `GetModuleInterfaceInstance` built and shuts the sound layer down. Without an instance it does
/// nothing.
using ReleaseModuleInterfaceInstanceFunction = void();

/// The static product version; never null, never freed by the host.
using GetProductVersionFunction = const ostra::ProductVersion *();
}

namespace ostra::exports {
inline constexpr const char *getModuleInterfaceInstance = "GetModuleInterfaceInstance";
inline constexpr const char *releaseModuleInterfaceInstance = "ReleaseModuleInterfaceInstance";
inline constexpr const char *getProductVersion = "GetProductVersion";
} // namespace ostra::exports
