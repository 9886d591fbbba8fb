// SPDX-License-Identifier: Apache-2.0
#include "tools/field-check/checks.h"

#include <windows.h>

#include <array>

namespace field_check {

namespace {

constexpr std::array<int, 5> scales{100, 150, 200, 250, 300};
constexpr int designDpi = 96;

// This program's manifest lets it see the screen's own figure.
int presentScale()
{
    HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi * 100 / designDpi;
}

} // namespace

Finding checkDpi(const Surroundings &surroundings)
{
    Finding finding{"dpi", "The dialogs fit the screen at scales from 100 to 300 %; look at the pictures.", {}, {}, {}};
    if (surroundings.device.empty() || surroundings.microphone.empty()) {
        finding.conclude(State::notPossible, "There is no output or no microphone, so that no dialog comes up.");
        return finding;
    }
    int pictures = photographDialog(surroundings, "scale-present") ? 1 : 0;
    finding.add("presentScalePercent", presentScale());
    for (const int scale : scales) {
        const std::string name = std::to_string(scale);
        if (ask(surroundings, "Set the screen's scale to " + name + " % in the settings (System, Display).") &&
            photographDialog(surroundings, "scale-" + name))
            ++pictures;
    }
    finding.add("pictures", pictures);
    if (pictures == 1 + static_cast<int>(scales.size()))
        finding.conclude(State::proved, "There is a picture of every scale.");
    else
        finding.conclude(State::notPossible, pictures == 0 ? "No picture could be taken." : "Not every scale was set.");
    return finding;
}

} // namespace field_check
