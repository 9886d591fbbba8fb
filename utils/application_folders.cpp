// SPDX-License-Identifier: Apache-2.0
#include "utils/application_folders.h"

#include "utils/folder_separator.h"
#include "utils/wide_text.h"

namespace ostra::utils {

namespace {

std::u16string_view folderName(std::uint32_t id) noexcept
{
    switch (id) {
    case application_folder::logs:
        return u"logs";
    case application_folder::workers:
        return u"wkrs";
    case application_folder::scripts:
    case application_folder::currentScripts:
        return u"scripts";
    case application_folder::webEngine:
        return u"QtWebEngine";
    case application_folder::thermalMonitorLogs:
        return u"logs_thermal_monitor_tool";
    case application_folder::temporary:
        return u"temp";
    case application_folder::toolLogs:
        return u"logs_tools";
    default:
        return {};
    }
}

/// Every part ends with the separator, an unknown one is the separator alone.
std::u16string asFolder(std::u16string_view part) { return std::u16string(part) + folderSeparator; }

bool mayBeLost(std::uint32_t id) noexcept { return id == application_folder::webEngine || id == application_folder::temporary; }

} // namespace

FolderSources &folderSources() noexcept
{
    static FolderSources sources;
    return sources;
}

std::u16string applicationFolder(std::uint32_t id)
{
    const FolderSources &sources = folderSources();
    const std::u16string root = asFolder(u"Tamrex");
    const std::u16string product = root + asFolder(u"VMK");
    const std::u16string user = product + asFolder(sources.userName());
    const std::u16string base = asFolder(mayBeLost(id) ? sources.cacheFolder() : sources.dataFolder());
    const std::u16string current = asFolder(sources.currentFolder());
    switch (id) {
    case application_folder::root:
        return base + root;
    case application_folder::product:
        return base + product;
    case application_folder::user:
        return base + user;
    case application_folder::currentScripts:
        return current + asFolder(folderName(id));
    default:
        return folderName(id).empty() ? std::u16string() : base + user + asFolder(folderName(id));
    }
}

std::string applicationFolderUtf8(std::uint32_t id) { return toUtf8(applicationFolder(id)); }

} // namespace ostra::utils
