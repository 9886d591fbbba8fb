// SPDX-License-Identifier: Apache-2.0
#include "tools/field-check/checks.h"
#include "tools/field-check/child_process.h"
#include "tools/field-check/endpoint.h"
#include "tools/field-check/screenshot.h"

#include <windows.h>

#include <shellapi.h>

#include <fstream>
#include <iostream>

namespace field_check {

namespace {

constexpr const char *usage =
    R"(Usage: field-check [--nobody] [--results FOLDER]

Looks at what only a real Windows can show: COM on worker threads, the volume up and back, hot-plug, the drivers'
versions, scales of 100 to 300 %, the four contrast themes, planted libraries, the loopback of an output, the installer.
It lies beside the zip and the installer, unpacks the zip itself, and takes about five minutes. It plays spoken digits
at full volume, changes the contrast theme and the volume, and puts both back.

  --nobody          asks nothing: what needs somebody is noted as not possible
  --results FOLDER  instead of field-check-results beside this program: field-check.json, pictures, logs

Exit codes: 0 nothing failed, 1 something failed, 2 wrong usage or no program to check.
)";

constexpr int failed = 1;
constexpr int wrongUse = 2;
constexpr std::chrono::minutes unpacking{2};

std::filesystem::path ownFolder()
{
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return std::filesystem::path(path).parent_path();
}

// The newest by name, for there should be one only.
std::filesystem::path findBeside(const std::filesystem::path &folder, const std::wstring &ending)
{
    std::filesystem::path found;
    for (const auto &entry : std::filesystem::directory_iterator(folder)) {
        const std::wstring name = entry.path().filename().wstring();
        const bool hasEnding =
            name.size() >= ending.size() && name.compare(name.size() - ending.size(), ending.size(), ending) == 0;
        if (name.rfind(L"TamrexDiagnostics", 0) == 0 && hasEnding && entry.path() > found)
            found = entry.path();
    }
    return found;
}

std::filesystem::path programFolder(const std::filesystem::path &own, const std::filesystem::path &scratch)
{
    if (exists(own / L"TamrexDiagnostics.exe"))
        return own;
    const auto unpacked = findBeside(own, L"-windows-x64");
    if (!unpacked.empty())
        return unpacked;
    const auto zip = findBeside(own, L".zip");
    if (zip.empty())
        return {};
    runToEnd(L"tar.exe -xf \"" + zip.wstring() + L'"', scratch, scratch / L"unpacking.log", unpacking); // Windows 10 has it
    return findBeside(scratch, L"-windows-x64");
}

/// A folder of its own for what is thrown away.
class Scratch {
public:
    Scratch() : folder_(std::filesystem::temp_directory_path() / (L"field-check-" + std::to_wstring(GetCurrentProcessId())))
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored); // of a run that was ended
        std::filesystem::create_directories(folder_);
    }
    ~Scratch()
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    Scratch(const Scratch &) = delete;
    Scratch &operator=(const Scratch &) = delete;

    const std::filesystem::path &folder() const noexcept { return folder_; }

private:
    std::filesystem::path folder_;
};

bool readArguments(Surroundings &surroundings)
{
    int count = 0;
    LPWSTR *arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    bool isUnderstood = arguments != nullptr;
    for (int index = 1; isUnderstood && index < count; ++index) {
        const std::wstring argument = arguments[index];
        if (argument == L"--nobody")
            surroundings.isSomebodyThere = false;
        else if (argument == L"--results" && index + 1 < count)
            surroundings.results = std::filesystem::absolute(arguments[++index]);
        else
            isUnderstood = false;
    }
    LocalFree(arguments);
    return isUnderstood;
}

// One check that cannot do its work must not take the others' findings with it.
Finding guarded(Finding (*check)(const Surroundings &), const Surroundings &surroundings)
{
    try {
        return check(surroundings);
    } catch (const std::exception &error) {
        return {"broken-check", "Every check can do its work.", State::failed, error.what(), {}};
    }
}

int checkEverything(const Surroundings &surroundings)
{
    std::vector<Finding> findings;
    bool isFailed = false;
    for (const auto check : {checkDriver, checkLoopback, checkLevels, checkCom, checkPlantedLibrary, checkInstaller,
                             checkContrast, checkHotPlug, checkDpi}) {
        findings.push_back(guarded(check, surroundings));
        const Finding &last = findings.back();
        isFailed = isFailed || last.state == State::failed;
        std::cout << last.check << ": " << wordFor(last.state) << ". " << last.detail << std::endl;
    }
    const bool isPictured = saveScreenshot(surroundings.results / L"screen.png");
    std::ofstream report(surroundings.results / L"field-check.json", std::ios::binary);
    report << jsonDocument({{"windows", windowsVersion()},
                            {"isWine", isWine() ? "yes" : "no"},
                            {"device", surroundings.device},
                            {"microphone", surroundings.microphone},
                            {"screenPictured", isPictured ? "yes" : "no"}},
                           findings);
    std::cout << "Report: " << narrow((surroundings.results / L"field-check.json").wstring()) << std::endl;
    return isFailed || !report.flush() ? failed : 0;
}

int run()
{
    Surroundings surroundings;
    surroundings.results = ownFolder() / L"field-check-results";
    if (!readArguments(surroundings)) {
        std::cerr << usage;
        return wrongUse;
    }
    const Scratch scratch;
    surroundings.scratch = scratch.folder();
    surroundings.program = programFolder(ownFolder(), scratch.folder());
    if (surroundings.program.empty()) {
        std::cerr << "field-check: there is no TamrexDiagnostics-…-windows-x64 beside this program, neither folder nor zip\n";
        return wrongUse;
    }
    surroundings.setup = findBeside(ownFolder(), L"-setup.exe");
    surroundings.device = defaultEndpointName(eRender);
    surroundings.microphone = defaultEndpointName(eCapture);
    std::filesystem::create_directories(surroundings.results);
    return checkEverything(surroundings);
}

} // namespace

} // namespace field_check

int main()
{
    try {
        return field_check::run();
    } catch (const std::exception &error) {
        std::cerr << "field-check: " << error.what() << '\n';
        return field_check::failed;
    }
}
