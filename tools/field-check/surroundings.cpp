// SPDX-License-Identifier: Apache-2.0
#include "tools/field-check/surroundings.h"

#include "tools/field-check/child_process.h"
#include "tools/field-check/screenshot.h"

#include <windows.h>

#include <cstdio>
#include <iostream>

namespace field_check {

namespace {

constexpr std::chrono::seconds shownRun{12};
constexpr std::chrono::seconds longestShownRun{90};
constexpr DWORD untilTheDialog = 8000; ///< milliseconds, the instructions come first

FARPROC systemFunction(const char *name) { return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), name); }

} // namespace

std::string narrow(const std::wstring &text)
{
    const int length = static_cast<int>(text.size());
    std::string result(
        static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr)), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), static_cast<int>(result.size()), nullptr, nullptr);
    return result;
}

std::wstring wide(const std::string &text)
{
    const int length = static_cast<int>(text.size());
    std::wstring result(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), length, result.data(), static_cast<int>(result.size()));
    return result;
}

std::string hexadecimal(long result)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%08lX", static_cast<unsigned long>(result));
    return text;
}

bool isWine() { return systemFunction("wine_get_version") != nullptr; }

std::string windowsVersion()
{
    // The documented function answers what the manifest lets it.
    const auto getVersion =
        reinterpret_cast<LONG(WINAPI *)(OSVERSIONINFOW *)>(reinterpret_cast<void *>(systemFunction("RtlGetVersion")));
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    if (getVersion == nullptr || getVersion(&version) != 0)
        return {};
    return std::to_string(version.dwMajorVersion) + '.' + std::to_string(version.dwMinorVersion) + '.' +
           std::to_string(version.dwBuildNumber);
}

bool ask(const Surroundings &surroundings, const std::string &what)
{
    if (!surroundings.isSomebodyThere)
        return false;
    std::cout << "\n  >> " << what << "\n     Enter goes on, s and Enter leaves it out: " << std::flush;
    std::string answer;
    return static_cast<bool>(std::getline(std::cin, answer)) && answer.empty();
}

std::wstring hostCommand(const Surroundings &surroundings, const std::wstring &options)
{
    return L'"' + (surroundings.program / L"TamrexDiagnostics.exe").wstring() + L"\" --unattended --device \"" +
           wide(surroundings.device) + L"\" --listen \"" + wide(surroundings.microphone) + L"\" " + options;
}

std::wstring stoppedRun(const Surroundings &surroundings, std::chrono::milliseconds stop, const std::string &pictures)
{
    return hostCommand(surroundings, L"--test p --stop-after " + std::to_wstring(stop.count()) + L" --screenshots \"" +
                                         (surroundings.results / wide(pictures)).wstring() + L'"');
}

bool photographDialog(const Surroundings &surroundings, const std::string &name)
{
    ChildProcess child(stoppedRun(surroundings, shownRun, name), surroundings.scratch,
                       surroundings.results / wide(name + ".log"));
    Sleep(untilTheDialog);
    const bool isSaved = saveScreenshot(surroundings.results / wide(name + ".png"));
    return child.waitFor(longestShownRun) && isSaved;
}

} // namespace field_check
