// SPDX-License-Identifier: Apache-2.0
#include "tools/field-check/checks.h"
#include "tools/field-check/child_process.h"

#include <regex>

namespace field_check {

namespace {

constexpr std::chrono::seconds listing{120};

} // namespace

Finding checkDriver(const Surroundings &surroundings)
{
    Finding finding{"driver-query", "The system's management service tells the version of the sound driver.", {}, {}, {}};
    const auto output = surroundings.results / L"devices.json";
    const auto code = runToEnd(L'"' + (surroundings.program / L"TamrexDiagnosticsCLI.exe").wstring() + L"\" list --json",
                               surroundings.scratch, output, listing);
    if (!code || *code != 0) {
        finding.conclude(State::failed, "The device list did not come.");
        return finding;
    }
    const std::string text = contents(output);
    const std::regex version("\"driverVersion\": *\"([^\"]+)\"");
    long long found = 0;
    for (std::sregex_iterator row(text.begin(), text.end(), version); row != std::sregex_iterator(); ++row)
        finding.add("version" + std::to_string(++found), (*row)[1].str());
    finding.add("devicesWithAVersion", found);
    if (found > 0)
        finding.conclude(State::proved, "At least one device has a version.");
    else if (isWine())
        finding.conclude(State::notPossible, "This system has no list of drivers.");
    else
        finding.conclude(State::failed, "No device has a version.");
    return finding;
}

} // namespace field_check
