// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/process_leftovers.h"

#include <windows.h>

#include <objbase.h>
#include <tlhelp32.h>

#include <vector>

namespace {

std::vector<DWORD> threadIds()
{
    std::vector<DWORD> ids;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = Thread32First(snapshot, &entry); more != 0; more = Thread32Next(snapshot, &entry)) {
        if (entry.th32OwnerProcessID == GetCurrentProcessId())
            ids.push_back(entry.th32ThreadID);
    }
    CloseHandle(snapshot);
    return ids;
}

} // namespace

int runningThreadCount() { return static_cast<int>(threadIds().size()); }

int nativeWindowCount()
{
    int count = 0;
    const auto countOne = [](HWND, LPARAM counter) -> BOOL {
        ++*reinterpret_cast<int *>(counter);
        return TRUE;
    };
    for (const DWORD id : threadIds())
        EnumThreadWindows(id, countOne, reinterpret_cast<LPARAM>(&count));
    return count;
}

bool isInApartment()
{
    APTTYPE type{};
    APTTYPEQUALIFIER qualifier{};
    return CoGetApartmentType(&type, &qualifier) != CO_E_NOTINITIALIZED;
}
