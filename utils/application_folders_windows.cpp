// SPDX-License-Identifier: Apache-2.0
#include "utils/application_folders.h"

#include "utils/folder_separator.h"

#include <windows.h>

#include <objbase.h>
#include <shlobj.h>

#include <array>
#include <memory>

namespace ostra::utils {

namespace {

// FOLDERID_ProgramData of knownfolders.h
constexpr GUID programDataFolder = {0x62AB5D82, 0xFDC1, 0x4DC3, {0xA9, 0xDD, 0x07, 0x0D, 0x1D, 0x49, 0x5D, 0x97}};

constexpr std::size_t userNameUnitCount = 257; // UNLEN and the terminator
constexpr std::size_t currentFolderUnitCount = 260;

struct TaskMemoryRelease {
    void operator()(wchar_t *memory) const { CoTaskMemFree(memory); }
};

std::u16string toUtf16(std::wstring_view text) { return {text.begin(), text.end()}; }

} // namespace

const char16_t folderSeparator = u'\\';

std::u16string systemDataFolder()
{
    PWSTR answer = nullptr;
    const HRESULT result = SHGetKnownFolderPath(programDataFolder, 0, nullptr, &answer);
    const std::unique_ptr<wchar_t, TaskMemoryRelease> path(answer); // the caller's even after a failure
    return SUCCEEDED(result) && path != nullptr ? toUtf16(path.get()) : std::u16string();
}

std::u16string systemCacheFolder() { return systemDataFolder(); }

std::u16string systemUserName()
{
    std::array<wchar_t, userNameUnitCount> buffer{};
    auto unitCount = static_cast<DWORD>(buffer.size());
    return GetUserNameW(buffer.data(), &unitCount) != FALSE ? toUtf16(buffer.data()) : std::u16string();
}

std::u16string systemCurrentFolder()
{
    std::array<wchar_t, currentFolderUnitCount> buffer{};
    // A longer path is not written; the call then returns the room that it needs.
    const DWORD unitCount = GetCurrentDirectoryW(static_cast<DWORD>(buffer.size()), buffer.data());
    return unitCount <= buffer.size() ? toUtf16({buffer.data(), unitCount}) : std::u16string();
}

} // namespace ostra::utils
