// SPDX-License-Identifier: Apache-2.0
#include "contract/exports.h"

#include "module/export_macro.h"
#include "module/instance.h"
#include "module/library_pin.h"
#include "utils/dpi.h"

namespace {

// One host thread gets and releases it; there is no lock on purpose.
ostra::ModuleInterface *singleton = nullptr;

} // namespace

extern "C" {

MODULE_AUDIO_EXPORT ostra::ModuleInterface *GetModuleInterfaceInstance() noexcept
{
    if (singleton != nullptr)
        return singleton;
    try {
        ostra::pinLibrary();
        singleton = ostra::buildInstance();
    } catch (...) {
        singleton = nullptr; // no exception may reach a host that was built by another compiler
    }
    return singleton;
}

MODULE_AUDIO_EXPORT void ReleaseModuleInterfaceInstance() noexcept
{
    if (singleton == nullptr)
        return;
    try {
        ostra::destroyInstance(singleton);
        ostra::utils::Dpi::destroyInstance(); // lies below a window of the host, which may live on
    } catch (...) {
        // What is left is leaked: a second attempt could destroy twice.
    }
    singleton = nullptr;
}

MODULE_AUDIO_EXPORT const ostra::ProductVersion *GetProductVersion() noexcept
{
    static const ostra::ProductVersion version(4, 42, 0, 92);
    return &version;
}
}
