// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The product's working folders. Paths are computed, never created or looked up; every path ends with the platform's
/// separator. `docs/application-folders.md` has the table for both platforms.
///
/// Threading: any thread. Nothing but std::bad_alloc leaves these functions.
namespace ostra::utils {

/// Identifiers of the folders.
namespace application_folder {

inline constexpr std::uint32_t root = 0;
inline constexpr std::uint32_t product = 1;
inline constexpr std::uint32_t user = 2;
inline constexpr std::uint32_t logs = 3;
inline constexpr std::uint32_t workers = 4;
inline constexpr std::uint32_t scripts = 5;
inline constexpr std::uint32_t currentScripts = 6;
inline constexpr std::uint32_t webEngine = 7;
inline constexpr std::uint32_t thermalMonitorLogs = 8;
inline constexpr std::uint32_t temporary = 9;
inline constexpr std::uint32_t toolLogs = 10;

} // namespace application_folder

/// Rights that these folders are meant to have on Windows: full access for the local system and the administrators, read and
/// execute for the users. Whoever creates the folders applies it; this module does not.
inline constexpr std::u16string_view applicationFolderRights = u"D:(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)(A;OICI;0x1200a9;;;BU)";

/// Path of a folder as UTF-16, computed afresh from the user, the system and the current folder of now. Empty for an
/// unknown identifier (11 and more). A part that the system does not tell is left out, its separator is not.
std::u16string applicationFolder(std::uint32_t id);

/// The same as UTF-8.
std::string applicationFolderUtf8(std::uint32_t id);

/// Folder of data that all products share, without a separator at its end; empty when the system does not tell.
/// Windows: FOLDERID_ProgramData. Linux: XDG_DATA_HOME, else ".local/share" in the user's home.
std::u16string systemDataFolder();

/// The same for data that may be lost. Windows: FOLDERID_ProgramData. Linux: XDG_CACHE_HOME, else ".cache".
std::u16string systemCacheFolder();

/// Name of the account that runs the process; empty when the system does not tell.
std::u16string systemUserName();

/// The current folder; empty when the system does not tell. Windows: also when it has more than 259 characters.
std::u16string systemCurrentFolder();

/// Where the parts come from. Automated tests replace entries to make one fail; the product never writes them.
struct FolderSources {
    decltype(&systemDataFolder) dataFolder = &systemDataFolder;
    decltype(&systemCacheFolder) cacheFolder = &systemCacheFolder;
    decltype(&systemUserName) userName = &systemUserName;
    decltype(&systemCurrentFolder) currentFolder = &systemCurrentFolder;
};

/// The sources in force.
FolderSources &folderSources() noexcept;

} // namespace ostra::utils
