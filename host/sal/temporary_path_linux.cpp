// SPDX-License-Identifier: Apache-2.0
#include "host/sal/temporary_path_linux.h"

#include "host/sal/services.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

namespace sal {
namespace {

bool isPrivateFolder(const std::string &folder)
{
    struct stat facts {};
    if (::lstat(folder.c_str(), &facts) != 0 || !S_ISDIR(facts.st_mode)) // of the link itself, which is none
        return false;
    return facts.st_uid == ::geteuid() && (facts.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

// An absolute folder without trailing separators, "/" being the empty text; a relative one would move with the current folder.
bool readFolder(std::string &folder, const char *variable)
{
    const char *value = std::getenv(variable);
    if (value == nullptr || value[0] != '/')
        return false;
    folder = value;
    folder.erase(folder.find_last_not_of('/') + 1);
    return true;
}

class PrivateTemporaryPath final : public TemporaryPath {
public:
    std::string path() override
    {
        std::string folder;
        if (readFolder(folder, "XDG_RUNTIME_DIR") && isPrivateFolder(folder) && ensurePrivateFolder(folder + "/module-audio"))
            return folder + "/module-audio";
        if (!readFolder(folder, "TMPDIR"))
            folder = "/tmp";
        folder += "/module-audio-" + std::to_string(::geteuid());
        return ensurePrivateFolder(folder) ? folder : std::string();
    }
};

} // namespace

bool ensurePrivateFolder(const std::string &folder)
{
    if (isPrivateFolder(folder))
        return true;
    if (::mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST)
        return false;
    return isPrivateFolder(folder);
}

TemporaryPath &temporaryPathService()
{
    static PrivateTemporaryPath service;
    return service;
}

} // namespace sal
