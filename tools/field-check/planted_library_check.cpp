// SPDX-License-Identifier: Apache-2.0
#include "tools/field-check/checks.h"
#include "tools/field-check/child_process.h"

#include <algorithm>
#include <array>
#include <cwctype>

namespace field_check {

namespace {

// What the program, Qt and SDL load at run time.
constexpr std::array<const wchar_t *, 8> systemNames{L"shcore.dll",   L"avrt.dll",     L"dwmapi.dll",  L"uxtheme.dll",
                                                     L"wbemprox.dll", L"mmdevapi.dll", L"version.dll", L"propsys.dll"};
constexpr std::chrono::seconds run{6};
constexpr std::chrono::seconds longestRun{90};
constexpr DWORD between = 100; ///< milliseconds between two looks

std::wstring lowered(std::wstring text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](wchar_t letter) { return static_cast<wchar_t>(std::towlower(letter)); });
    return text;
}

void watch(ChildProcess &child, std::set<std::wstring> &loaded)
{
    const auto end = std::chrono::steady_clock::now() + longestRun;
    while (child.isRunning() && std::chrono::steady_clock::now() < end) {
        loaded.merge(child.libraries());
        Sleep(between);
    }
}

// A library that does nothing, under other names.
void plant(const std::filesystem::path &harmless, const std::filesystem::path &folder)
{
    std::filesystem::create_directories(folder);
    for (const wchar_t *name : systemNames)
        std::filesystem::copy_file(harmless, folder / name, std::filesystem::copy_options::overwrite_existing);
}

} // namespace

Finding checkPlantedLibrary(const Surroundings &surroundings)
{
    Finding finding{"planted-library",
                    "A library planted in the current folder, or shcore.dll beside the program, is not loaded.",
                    {},
                    {},
                    {}};
    const auto current = surroundings.scratch / L"planted";
    const auto copy = surroundings.scratch / L"program";
    const auto harmless = surroundings.program / L"sal.dll";
    plant(harmless, current);
    std::filesystem::copy(surroundings.program, copy, std::filesystem::copy_options::recursive);
    // Only there: Wine's own shell library asks for it by name and takes the program's.
    if (!isWine())
        std::filesystem::copy_file(harmless, copy / L"shcore.dll");

    Surroundings planted = surroundings;
    planted.program = copy;
    std::set<std::wstring> loaded;
    {
        // With this option the program stays in the folder.
        ChildProcess host(stoppedRun(planted, run, "planted") + L" --config \"" + current.wstring() + L'"', current,
                          surroundings.results / L"planted.log");
        watch(host, loaded);
    }
    {
        ChildProcess lister(L'"' + (copy / L"TamrexDiagnosticsCLI.exe").wstring() + L"\" list", current,
                            surroundings.results / L"planted-list.log");
        watch(lister, loaded);
    }
    long long ours = 0;
    for (const std::wstring &path : loaded) {
        const auto folder = lowered(std::filesystem::path(path).parent_path().wstring());
        const bool isPlantedBeside = lowered(path) == lowered((copy / L"shcore.dll").wstring());
        if (folder == lowered(current.wstring()) || isPlantedBeside)
            finding.add("loaded" + std::to_string(++ours), narrow(path));
    }
    finding.add("librariesSeen", static_cast<long long>(loaded.size()));
    if (ours > 0)
        finding.conclude(State::failed, "A planted library was loaded.");
    else if (loaded.empty())
        finding.conclude(State::notPossible, "The program's libraries could not be seen.");
    else
        finding.conclude(State::proved, "None of the planted libraries was loaded.");
    return finding;
}

} // namespace field_check
