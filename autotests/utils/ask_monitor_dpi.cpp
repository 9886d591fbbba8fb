// SPDX-License-Identifier: Apache-2.0
// Asks for the monitor's DPI in a process that needs shcore.dll for nothing else: where Qt has brought it in, a load by its
// bare name finds that one and no planted one.
#include "autotests/utils/ask_monitor_dpi.h"

#include "contract/sal.h"
#include "utils/screen_sources.h"

#include <windows.h>

#include <string_view>

extern "C" {
sal::ModuleLoader *get_module() { return nullptr; }
}

int main(int argumentCount, char **arguments)
{
    if (GetModuleHandleW(L"shcore.dll") != nullptr)
        return ask_monitor_dpi::alreadyLoaded;
    if (argumentCount > 1 && std::string_view(arguments[1]) == ask_monitor_dpi::byBareName)
        LoadLibraryW(L"shcore.dll");
    const bool isTold = ostra::utils::monitorDpi().has_value();
    if (GetEnvironmentVariableW(L"PLANTED_LIBRARY", nullptr, 0) > 0)
        return ask_monitor_dpi::plantedRan;
    return isTold ? ask_monitor_dpi::told : ask_monitor_dpi::notTold;
}
