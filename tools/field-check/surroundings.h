// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "tools/field-check/findings.h"

#include <chrono>
#include <filesystem>
#include <string>

namespace field_check {

/// What the checks work with.
struct Surroundings {
    std::filesystem::path program; ///< folder of the unpacked zip
    std::filesystem::path setup;   ///< the installer; empty when there is none
    std::filesystem::path results; ///< folder of the report and the screenshots
    std::filesystem::path scratch; ///< folder that is removed at the end
    bool isSomebodyThere = true;   ///< whether questions may be asked
    std::string device;            ///< default output, empty when there is none
    std::string microphone;        ///< default input, empty when there is none
};

std::string narrow(const std::wstring &text);
std::wstring wide(const std::string &text);
/// A system call's result, such as "0x80004001".
std::string hexadecimal(long result);

/// Whether this is not Windows but Wine.
bool isWine();
/// Such as "10.0.22631".
std::string windowsVersion();
/// Says what to do and waits for Enter. False when nobody is there or the person wants to leave it out.
bool ask(const Surroundings &surroundings, const std::string &what);

/// Command line of a test run of the host on the default devices with nobody at it, stopped after that time.
std::wstring hostCommand(const Surroundings &surroundings, const std::wstring &options);
/// Such a run's command for the playback test, photographed into the folder `pictures` of the results.
std::wstring stoppedRun(const Surroundings &surroundings, std::chrono::milliseconds stop, const std::string &pictures);
/// Shows the playback test's dialog and saves a picture of the screen and the run's own pictures under that name.
bool photographDialog(const Surroundings &surroundings, const std::string &name);

} // namespace field_check
