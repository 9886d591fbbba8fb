// SPDX-License-Identifier: Apache-2.0
#include "tools/field-check/checks.h"
#include "tools/field-check/child_process.h"
#include "tools/field-check/endpoint.h"

#include <algorithm>
#include <cmath>

namespace field_check {

namespace {

constexpr float chosenLevel = 0.37F;
constexpr float tolerance = 0.01F;
constexpr float full = 0.99F;
constexpr std::chrono::seconds run{9};
constexpr std::chrono::seconds longestRun{90};
constexpr DWORD between = 20; ///< milliseconds between two looks

long long percent(float level) { return std::lround(level * 100); }

float highestDuring(ChildProcess &child, IAudioEndpointVolume &volume)
{
    float highest = 0;
    const auto end = std::chrono::steady_clock::now() + longestRun;
    while (child.isRunning() && std::chrono::steady_clock::now() < end) {
        float level = 0;
        if (SUCCEEDED(volume.GetMasterVolumeLevelScalar(&level)))
            highest = std::max(highest, level);
        Sleep(between);
    }
    return highest;
}

void watchRun(const Surroundings &surroundings, IAudioEndpointVolume &volume, Finding &finding)
{
    ChildProcess child(stoppedRun(surroundings, run, "levels"), surroundings.scratch, surroundings.results / L"levels.log");
    const float highest = highestDuring(child, volume);
    float after = 0;
    volume.GetMasterVolumeLevelScalar(&after);
    finding.add("percentBefore", percent(chosenLevel));
    finding.add("highestPercent", percent(highest));
    finding.add("percentAfter", percent(after));
    if (highest >= full && std::abs(after - chosenLevel) <= tolerance)
        finding.conclude(State::proved, "The run raised the volume and gave it back.");
    else
        finding.conclude(State::failed, highest < full ? "The run did not raise the volume." : "The volume did not come back.");
}

} // namespace

Finding checkLevels(const Surroundings &surroundings)
{
    Finding finding{"levels-up-and-back", "A run holds the volume at 100 % and gives the user's own back.", {}, {}, {}};
    const ComApartment apartment;
    ComPointer<IMMDevice> endpoint;
    ComPointer<IAudioEndpointVolume> volume;
    float before = 0;
    if (surroundings.microphone.empty() || FAILED(openDefaultEndpoint(eRender, endpoint)) ||
        FAILED(openVolume(*endpoint.get(), volume)) || FAILED(volume->GetMasterVolumeLevelScalar(&before))) {
        finding.conclude(State::notPossible, "There is no output with a volume, or no microphone.");
        return finding;
    }
    const HRESULT set = volume->SetMasterVolumeLevelScalar(chosenLevel, nullptr);
    if (FAILED(set)) {
        finding.conclude(State::notPossible, "This system sets no volume: " + hexadecimal(set));
        return finding;
    }
    watchRun(surroundings, *volume.get(), finding);
    volume->SetMasterVolumeLevelScalar(before, nullptr);
    return finding;
}

} // namespace field_check
