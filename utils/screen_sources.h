// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>

/// What the desktop says about contrast, colours and resolution.
///
/// Threading: GUI thread only. Nothing but std::bad_alloc leaves these functions.
namespace ostra::utils {

/// Whether the user has switched the desktop to high contrast, asked afresh.
///
/// Windows: SystemParametersInfoW(SPI_GETHIGHCONTRAST), bit HCF_HIGHCONTRASTON; a failing call reads as off.
/// Linux: "contrast" of "org.freedesktop.appearance" from the desktop portal's settings (1: more contrast). Where no portal
/// answers, the application's palette decides: high contrast when text stands on windows and on buttons at a contrast ratio
/// of 20:1 or more, which only (nearly) pure black and white reach.
bool desktopHighContrast();

/// The desktop's colour with a Windows system colour index (0 to 30 except 25), as 0x00BBGGRR.
///
/// Windows: GetSysColor. Linux: black and white when the portal's "color-scheme" asks for dark or light, else the matching
/// role of the application's palette; the portal's "accent-color", where there is one, is the highlight. A Linux desktop is
/// asked at most once every 50 ms and, when it did not answer within 200 ms, not again for 5 s.
std::uint32_t desktopColor(int index);

/// Effective dots per inch of the primary monitor; nothing when the system does not tell.
///
/// Windows: makes the process aware of each monitor's DPI and asks GetDpiForMonitor, both from the "shcore.dll" that the
/// host's module loader gives. Linux: nothing; Qt's screen knows.
std::optional<std::uint32_t> monitorDpi();

/// Where the answers come from. Automated tests replace entries: a Wine desktop refuses to switch high contrast on, and one
/// machine has one monitor. The product never writes them.
struct ScreenSources {
    decltype(&desktopHighContrast) highContrastOn = &desktopHighContrast;
    decltype(&desktopColor) systemColor = &desktopColor;
    decltype(&monitorDpi) primaryMonitorDpi = &monitorDpi;
};

/// The sources in force.
ScreenSources &screenSources() noexcept;

} // namespace ostra::utils
