// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/process_facts.h"

#include <windows.h>

#include <psapi.h>
#include <tlhelp32.h>

namespace process_facts {

namespace {

std::size_t threadCount()
{
    std::size_t count = 0;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = Thread32First(snapshot, &entry); more != 0; more = Thread32Next(snapshot, &entry))
        count += entry.th32OwnerProcessID == GetCurrentProcessId() ? 1U : 0U;
    CloseHandle(snapshot);
    return count;
}

} // namespace

Facts now()
{
    DWORD handles = 0;
    GetProcessHandleCount(GetCurrentProcess(), &handles);
    PROCESS_MEMORY_COUNTERS memory{};
    K32GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
    return {threadCount(), handles, memory.WorkingSetSize};
}

std::string text(const Facts &facts)
{
    return std::to_string(facts.threads) + " threads, " + std::to_string(facts.handles) + " handles, " +
           std::to_string(facts.residentBytes / 1024) + " KiB";
}

} // namespace process_facts
