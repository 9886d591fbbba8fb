// SPDX-License-Identifier: Apache-2.0
#include "host/sal/services.h"

#include "host/sal/text_windows.h"

#include <windows.h>

#include <string_view>

namespace sal {
namespace {

constexpr std::uint32_t fromSystemFolder = 1;

bool isBareName(const std::string &fileName)
{
    // A separator leaves the folder, a colon names a drive or a stream, a zero character would cut the name short.
    constexpr std::string_view refused("\\/:\0", 4);
    return !fileName.empty() && fileName.find_first_of(refused) == std::string::npos;
}

// Empty when Windows does not tell.
std::wstring systemFolder()
{
    std::wstring folder(MAX_PATH + 1, L'\0');
    const UINT length = GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size()));
    if (length == 0 || length >= folder.size())
        return {};
    folder.resize(length);
    return folder;
}

class SystemModuleLoader final : public ModuleLoader {
public:
    void *load(const std::string &fileName, std::uint32_t flag) override
    {
        if (flag != fromSystemFolder || !isBareName(fileName))
            return nullptr;
        const std::wstring folder = systemFolder();
        if (folder.empty())
            return nullptr;
        // By the full path: a bare name would be answered with any library of that name that the process has already loaded.
        const std::wstring path = folder + L'\\' + toWide(fileName);
        return LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    }

    void release(void *handle) override
    {
        if (handle != nullptr)
            FreeLibrary(static_cast<HMODULE>(handle));
    }
};

} // namespace

ModuleLoader &moduleLoaderService()
{
    static SystemModuleLoader service;
    return service;
}

} // namespace sal
