// SPDX-License-Identifier: Apache-2.0
#include "autotests/e2e/loss/process_load.h"

#include <windows.h>

#include <tlhelp32.h>

namespace process_load {

int threadCount()
{
    int count = 0;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = Thread32First(snapshot, &entry); more != 0; more = Thread32Next(snapshot, &entry))
        count += entry.th32OwnerProcessID == GetCurrentProcessId() ? 1 : 0;
    CloseHandle(snapshot);
    return count;
}

int handleCount()
{
    DWORD count = 0;
    GetProcessHandleCount(GetCurrentProcess(), &count);
    return static_cast<int>(count);
}

bool keepsFirstUse() { return true; }

bool waitsForSuspended() { return false; }

const char *shell() { return "Z:/bin/sh"; } // the tests run under Wine

} // namespace process_load
