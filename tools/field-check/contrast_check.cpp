// SPDX-License-Identifier: Apache-2.0
#include "tools/field-check/checks.h"

#include <windows.h>

#include <array>
#include <set>

namespace field_check {

namespace {

// The schemes behind the four themes, whatever a version of the system calls those.
constexpr std::array<const wchar_t *, 4> schemes{L"High Contrast Black", L"High Contrast White", L"High Contrast #1",
                                                 L"High Contrast #2"};
constexpr DWORD untilTheTheme = 4000; ///< milliseconds

/// The contrast settings as they were.
class ContrastKeeper {
public:
    ContrastKeeper() : isKnown_(SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof before_, &before_, 0) != FALSE)
    {
        if (before_.lpszDefaultScheme != nullptr)
            scheme_ = before_.lpszDefaultScheme;
    }
    ~ContrastKeeper()
    {
        before_.lpszDefaultScheme = scheme_.data();
        if (isKnown_ && isChanged_)
            SystemParametersInfoW(SPI_SETHIGHCONTRAST, sizeof before_, &before_, SPIF_SENDCHANGE);
    }
    ContrastKeeper(const ContrastKeeper &) = delete;
    ContrastKeeper &operator=(const ContrastKeeper &) = delete;

    bool turnOn(std::wstring scheme)
    {
        HIGHCONTRASTW contrast{sizeof(HIGHCONTRASTW), HCF_HIGHCONTRASTON | HCF_AVAILABLE, scheme.data()};
        isChanged_ = true;
        HIGHCONTRASTW now{sizeof(HIGHCONTRASTW), 0, nullptr};
        return isKnown_ && SystemParametersInfoW(SPI_SETHIGHCONTRAST, sizeof contrast, &contrast, SPIF_SENDCHANGE) != FALSE &&
               SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof now, &now, 0) != FALSE &&
               (now.dwFlags & HCF_HIGHCONTRASTON) != 0;
    }

private:
    HIGHCONTRASTW before_{sizeof(HIGHCONTRASTW), 0, nullptr};
    std::wstring scheme_;
    bool isKnown_;
    bool isChanged_ = false;
};

std::string presentColors()
{
    std::string text;
    for (const int color : {COLOR_WINDOW, COLOR_WINDOWTEXT, COLOR_HIGHLIGHT, COLOR_HOTLIGHT})
        text += hexadecimal(static_cast<long>(GetSysColor(color))) + ' ';
    return text;
}

} // namespace

Finding checkContrast(const Surroundings &surroundings)
{
    Finding finding{"contrast-themes", "The dialogs follow the four contrast themes; look at the pictures.", {}, {}, {}};
    if (surroundings.device.empty() || surroundings.microphone.empty()) {
        finding.conclude(State::notPossible, "There is no output or no microphone, so that no dialog comes up.");
        return finding;
    }
    ContrastKeeper keeper;
    std::set<std::string> seen{presentColors()};
    for (const wchar_t *scheme : schemes) {
        const std::string name = narrow(scheme);
        if (!keeper.turnOn(scheme)) {
            finding.conclude(State::notPossible, "This system does not turn on " + name + '.');
            return finding;
        }
        Sleep(untilTheTheme);
        finding.add(name, presentColors());
        seen.insert(presentColors());
        if (!photographDialog(surroundings, "contrast-" + std::to_string(seen.size() - 1)))
            finding.add(name + ", picture", "none");
    }
    if (seen.size() == schemes.size() + 1)
        finding.conclude(State::proved, "Four themes with four sets of colours were shown.");
    else
        finding.conclude(State::failed, "Some themes have the same colours: were they turned on?");
    return finding;
}

} // namespace field_check
