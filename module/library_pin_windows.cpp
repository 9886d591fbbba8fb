// SPDX-License-Identifier: Apache-2.0
#include "module/library_pin.h"

#include <windows.h>

namespace ostra {

void pinLibrary() noexcept
{
    static const wchar_t anchor = 0; // lies inside this library
    HMODULE library = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN, &anchor, &library);
}

} // namespace ostra
