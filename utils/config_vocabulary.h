// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

/// The words and patterns of the product's configuration file.
///
/// The audio module reads one key, `DEFAULT_LANGUAGE` of section "LANGUAGE"; the others belong to other parts of the
/// product and are listed so that everyone spells them alike. Nothing in this module may depend on them.
namespace ostra::utils {

/// The configuration file, sought in the current directory.
inline constexpr std::string_view configFileName = "config.ini";

namespace config_section {

inline constexpr std::string_view global = "GLOBAL";
inline constexpr std::string_view network = "NETWORK";
inline constexpr std::string_view service = "SERVICE";
inline constexpr std::string_view battery = "BATTERY";
inline constexpr std::string_view csat = "CSAT";
inline constexpr std::string_view display = "DISPLAY";
inline constexpr std::string_view motherboard = "MOTHERBOARD";
inline constexpr std::string_view storage = "STORAGE";
inline constexpr std::string_view videoCard = "VIDEO_CARD";
inline constexpr std::string_view language = "LANGUAGE";

} // namespace config_section

namespace config_key {

inline constexpr std::string_view defaultLanguage = "DEFAULT_LANGUAGE";
inline constexpr std::string_view runTimes = "RUN_TIMES";
inline constexpr std::string_view logFileName = "LOG_FILE_NAME";
inline constexpr std::string_view saveLogAutomatically = "SAVE_LOG_AUTOMATICALLY";
inline constexpr std::string_view stopOnError = "STOP_ON_ERROR";
inline constexpr std::string_view userInterrupt = "USER_INTERRUPT";
inline constexpr std::string_view doNotSkipTest = "DO_NOT_SKIP_TEST";
inline constexpr std::string_view enableServices = "ENABLE_SERVICES";
inline constexpr std::string_view disableSoundNotice = "DISABLE_SOUND_NOTICE";
inline constexpr std::string_view enableScriptsTab = "ENABLE_SCRIPTS_TAB";
inline constexpr std::string_view enableSymptomsTab = "ENABLE_SYMPTOMS_TAB";
inline constexpr std::string_view enableServiceTab = "ENABLE_SERVICE_TAB";
inline constexpr std::string_view tabOrder = "TAB_ORDER";
inline constexpr std::string_view internalMode = "INTERNAL_MODE";
inline constexpr std::string_view disableCreateEditScript = "DISABLE_CREATE_EDIT_SCRIPT";
inline constexpr std::string_view checkMbNames = "CHECK_MB_NAMES";
inline constexpr std::string_view jsonLogFolder = "JSON_LOG_FOLDER";
inline constexpr std::string_view enablePowerCycleTool = "ENABLE_POWER_CYCLE_TOOL";
inline constexpr std::string_view enableDeviceList = "ENABLE_DEVICE_LIST";
inline constexpr std::string_view customStartScript = "CUSTOM_START_SCRIPT";
inline constexpr std::string_view enableImportScripts = "ENABLE_IMPORT_SCRIPTS";
inline constexpr std::string_view downloadServer = "DOWNLOAD_SERVER";
inline constexpr std::string_view uploadServer = "UPLOAD_SERVER";
inline constexpr std::string_view latencyServer = "LATENCY_SERVER";
inline constexpr std::string_view showSummary = "SHOW_SUMMARY";
inline constexpr std::string_view advancedTestStrictMode = "ADVANCED_TEST_STRICT_MODE";
inline constexpr std::string_view advancedTestLayout = "ADVANCED_TEST_LAYOUT";
inline constexpr std::string_view enableAudioMultichannelTest = "ENABLE_AUDIO_MULTICHANNEL_TEST";
inline constexpr std::string_view enableBatteryInfoDate = "ENABLE_BATTERY_INFO_DATE";
inline constexpr std::string_view enableConnectionTest = "ENABLE_CONNECTION_TEST";
inline constexpr std::string_view csatPopupTimeout = "CSAT_POPUP_TIMEOUT";
inline constexpr std::string_view csatTestTimeout = "CSAT_TEST_TIMEOUT";
/// Followed by the id of an interactive test of another module.
inline constexpr std::string_view csatTestTimeoutPrefix = "CSAT_TEST_TIMEOUT_";
inline constexpr std::string_view displayColorsOrder = "DISPLAY_COLORS_ORDER";
inline constexpr std::string_view enableExternalPortsTest = "ENABLE_EXTERNAL_PORTS_TEST";
inline constexpr std::string_view enableNvmeHealthPredictionTest = "ENABLE_NVME_HEALTH_PREDICTION_TEST";
inline constexpr std::string_view enableTdrDetection = "ENABLE_TDR_DETECTION";

} // namespace config_key

/// Forms of typed values, for readers of such settings; this module applies none of them.
namespace config_value_pattern {

inline constexpr std::string_view boolean = R"(^[01]$)";
inline constexpr std::string_view wholeNumber = R"(^[\d]+$)";
inline constexpr std::string_view decimal = R"(^[\-\+]?((\d+\.\d*)|(\d*\.\d+))$)";

} // namespace config_value_pattern

/// What a line means, as ECMAScript patterns that are searched for anywhere in the line.
///
/// They define the file format, they are not run: regular expression engines recurse or go quadratic on long lines
/// (libstdc++'s overflows a 256 KiB stack at some 800 characters, an unmatched word costs its length squared). The
/// functions of `utils/config_line.h` do the same work in linear time; the automated tests compare the two.
namespace config_line_pattern {

inline constexpr std::string_view blank = R"(^\s*$)";
inline constexpr std::string_view sectionHeader = R"(\[([\w\s*]+)\])";
inline constexpr std::string_view keyAndValue = R"(([\w]+)\s*=\s*([^]+)$)";

/// A line that holds none of these characters is rejected with 1010 before any pattern is looked at.
inline constexpr std::string_view marks = "[]=";

/// One reason to reject a line.
struct Check {
    std::uint32_t code;
    std::string_view pattern;
    /// The check applies only to lines without this character; NUL: to every line.
    char absentMark;
};

/// In the order in which they are tried; the first that fires decides.
inline constexpr std::array<Check, 10> checks = {{
    {1001, R"((\[\s*\w+\[)|(\[\[))", '\0'},
    {1002, R"((\]\s*\w+\])|(\]\]))", '\0'},
    {1003, R"((=\s*\w+=)|(==))", '\0'},
    {1006, R"(((=\w+(\[|\]))|((\[|\]))\w+=)|(\[=)|(\]=)|(=\[)|(=\]))", '\0'},
    {1007, R"((\[\]{0}[\w]+)|(\]{0}[\w]+\[+))", ']'},
    {1008, R"((\[{0}[\w]+\]+)|(\]\[{0}[\w]+))", '['},
    {1009, R"((\]\w+\[)|(\]\[))", '\0'},
    {1011, R"(\[\s*\]+)", '\0'},
    {1012, R"(^\s*=\s*[\w]+)", '\0'},
    {1014, R"(^[\w]+\s*=\s*$)", '\0'},
}};

} // namespace config_line_pattern

} // namespace ostra::utils
