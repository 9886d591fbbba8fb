// SPDX-License-Identifier: Apache-2.0
#include "utils/screen_sources.h"

#include "contract/sal.h"
#include "utils/guarded.h"

#include <windows.h>

#include <memory>
#include <type_traits>

namespace ostra::utils {

namespace {

// shellscalingapi.h of the system's SDK
constexpr int processPerMonitorDpiAware = 2;
constexpr int effectiveDpi = 0; // MDT_EFFECTIVE_DPI
using SetProcessDpiAwarenessFunction = HRESULT(WINAPI *)(int);
using GetDpiForMonitorFunction = HRESULT(WINAPI *)(HMONITOR, int, UINT *, UINT *);

constexpr std::uint32_t fromSystemFolder = 1;

struct HostRelease {
    void operator()(void *library) const
    {
        guarded([library] { get_module()->release(library); });
    }
};
struct SystemRelease {
    void operator()(void *library) const { FreeLibrary(static_cast<HMODULE>(library)); }
};

template <typename Function>
Function resolve(void *library, const char *name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void *>(GetProcAddress(static_cast<HMODULE>(library), name)));
}

std::optional<std::uint32_t> primaryDpi(GetDpiForMonitorFunction dpiForMonitor)
{
    const HMONITOR monitor = MonitorFromWindow(GetDesktopWindow(), MONITOR_DEFAULTTOPRIMARY);
    UINT x = 0;
    UINT y = 0;
    if (dpiForMonitor == nullptr || monitor == nullptr || dpiForMonitor(monitor, effectiveDpi, &x, &y) != S_OK)
        return std::nullopt;
    return x;
}

std::optional<std::uint32_t> askLibrary(void *library)
{
    if (library == nullptr)
        return std::nullopt;
    if (const auto setAwareness = resolve<SetProcessDpiAwarenessFunction>(library, "SetProcessDpiAwareness"))
        setAwareness(processPerMonitorDpiAware); // fails when the host has chosen already, which is as well
    return primaryDpi(resolve<GetDpiForMonitorFunction>(library, "GetDpiForMonitor"));
}

} // namespace

std::optional<std::uint32_t> monitorDpi()
{
    if (sal::ModuleLoader *loader = get_module()) {
        const auto load = [loader] { return loader->load("shcore.dll", fromSystemFolder); };
        const std::unique_ptr<void, HostRelease> library(answerOr(load, static_cast<void *>(nullptr)));
        return askLibrary(library.get());
    }
    // A bare name would find a copy beside the executable first.
    const std::unique_ptr<void, SystemRelease> library(LoadLibraryExW(L"shcore.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32));
    return askLibrary(library.get());
}

} // namespace ostra::utils
