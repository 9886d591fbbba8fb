// SPDX-License-Identifier: Apache-2.0
#include "tools/field-check/checks.h"
#include "tools/field-check/child_process.h"

#include <shellapi.h>

namespace field_check {

namespace {

constexpr DWORD longestInstallation = 180'000; ///< milliseconds, with the system's question
constexpr std::chrono::seconds listing{60};
constexpr DWORD tooOld = 3;
constexpr int looks = 120;
constexpr DWORD betweenLooks = 500; ///< milliseconds

// Asks for the administrator's rights where the program wants them.
std::optional<DWORD> runElevated(const std::filesystem::path &program, const std::wstring &arguments)
{
    SHELLEXECUTEINFOW start{};
    start.cbSize = sizeof start;
    start.fMask = SEE_MASK_NOCLOSEPROCESS;
    start.lpFile = program.c_str();
    start.lpParameters = arguments.c_str();
    if (!ShellExecuteExW(&start) || start.hProcess == nullptr)
        return std::nullopt;
    DWORD code = 0;
    const bool isOver =
        WaitForSingleObject(start.hProcess, longestInstallation) == WAIT_OBJECT_0 && GetExitCodeProcess(start.hProcess, &code);
    CloseHandle(start.hProcess);
    return isOver ? std::optional<DWORD>(code) : std::nullopt;
}

// The uninstaller goes on by a copy of itself.
bool becomesAbsent(const std::filesystem::path &folder)
{
    for (int look = 0; look < looks; ++look) {
        if (!std::filesystem::exists(folder))
            return true;
        Sleep(betweenLooks);
    }
    return false;
}

} // namespace

Finding checkInstaller(const Surroundings &surroundings)
{
    Finding finding{
        "installer", "The installer installs silently, the program runs, the uninstaller leaves nothing.", {}, {}, {}};
    if (surroundings.setup.empty()) {
        finding.conclude(State::notPossible, "There is no installer beside this program.");
        return finding;
    }
    const auto folder = surroundings.scratch / L"installed";
    const auto installed = runElevated(surroundings.setup, L"/S /D=" + folder.wstring());
    finding.add("installerCode", installed ? std::to_string(*installed) : std::string("none"));
    if (!installed || *installed == tooOld) {
        finding.conclude(State::notPossible,
                         installed ? "The installer finds this Windows too old." : "The installer was not let.");
        return finding;
    }
    const auto listed = runToEnd(L'"' + (folder / L"TamrexDiagnosticsCLI.exe").wstring() + L"\" list", surroundings.scratch,
                                 surroundings.results / L"installed-list.log", listing);
    finding.add("listCode", listed ? std::to_string(*listed) : std::string("none"));
    const auto removed = runElevated(folder / L"uninstall.exe", L"/S");
    finding.add("uninstallerCode", removed ? std::to_string(*removed) : std::string("none"));
    if (!becomesAbsent(folder))
        finding.conclude(State::failed, "The uninstaller left its folder.");
    else if (listed && *listed == 0)
        finding.conclude(State::proved, "Installed, ran, removed.");
    else
        finding.conclude(State::failed, "The installed program did not list the devices.");
    return finding;
}

} // namespace field_check
