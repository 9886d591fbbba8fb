// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/process_facts.h"

#include <windows.h>

#include <objbase.h>
#include <psapi.h>
#include <tlhelp32.h>

#include <vector>

namespace process_facts {

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

Facts now()
{
    DWORD handles = 0;
    GetProcessHandleCount(GetCurrentProcess(), &handles);
    PROCESS_MEMORY_COUNTERS memory{};
    K32GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
    return {threadIds().size(), handles, memory.WorkingSetSize};
}

std::string text(const Facts &facts)
{
    return std::to_string(facts.threads) + " threads, " + std::to_string(facts.handles) + " handles, " +
           std::to_string(facts.residentBytes / 1024) + " KiB";
}

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

} // namespace process_facts
