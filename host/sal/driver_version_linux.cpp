// SPDX-License-Identifier: Apache-2.0
#include "host/sal/driver_version_linux.h"

#include <sys/utsname.h>

#include <fstream>

namespace sal {
namespace {

std::string moduleVersion(std::uint32_t alsaCard, const std::filesystem::path &systemFolder)
{
    const std::string card = "card" + std::to_string(alsaCard);
    std::ifstream file(systemFolder / "class/sound" / card / "device/driver/module/version");
    std::string version;
    std::getline(file, version);
    return version;
}

std::string kernelRelease()
{
    utsname names{};
    if (::uname(&names) != 0)
        return {};
    return std::string("kernel ") + names.release;
}

} // namespace

std::string kernelDriverVersion(std::optional<std::uint32_t> alsaCard, const std::filesystem::path &systemFolder)
{
    if (alsaCard) {
        std::string version = moduleVersion(*alsaCard, systemFolder);
        if (!version.empty())
            return version;
    }
    return kernelRelease();
}

} // namespace sal
