// SPDX-License-Identifier: Apache-2.0
#include <windows.h>

/// Leaves a mark in the process that loads it.
extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH)
        SetEnvironmentVariableW(L"PLANTED_LIBRARY", L"loaded");
    return TRUE;
}
