// SPDX-License-Identifier: Apache-2.0
#include "host/sal/services.h"

#include "host/sal/text_windows.h"

#include <windows.h>

namespace sal {
namespace {

using GetTempPathFunction = DWORD WINAPI(DWORD bufferLength, LPWSTR buffer);

// The newer function, on the systems that have it, gives a process of the SYSTEM account a folder that other accounts cannot
// write to; for everybody else the two agree.
GetTempPathFunction *bestGetTempPath()
{
    const HMODULE kernel = GetModuleHandleW(L"kernel32.dll");
    void *newer = kernel == nullptr ? nullptr : reinterpret_cast<void *>(GetProcAddress(kernel, "GetTempPath2W"));
    return newer == nullptr ? &GetTempPathW : reinterpret_cast<GetTempPathFunction *>(newer);
}

class UserTemporaryPath final : public TemporaryPath {
public:
    std::string path() override
    {
        std::wstring folder(MAX_PATH + 1, L'\0');
        const DWORD length = bestGetTempPath()(static_cast<DWORD>(folder.size()), folder.data());
        if (length == 0 || length >= folder.size())
            return {};
        folder.resize(length);
        folder.erase(folder.find_last_not_of(L"\\/") + 1);
        return toUtf8(folder);
    }
};

} // namespace

TemporaryPath &temporaryPathService()
{
    static UserTemporaryPath service;
    return service;
}

} // namespace sal
