// SPDX-License-Identifier: Apache-2.0
#include "host/sal/temporary_path_linux.h"

#include "host/sal/services.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

namespace sal {
namespace {

class Descriptor {
public:
    explicit Descriptor(int descriptor) : descriptor_(descriptor) {}
    ~Descriptor()
    {
        if (descriptor_ >= 0)
            ::close(descriptor_);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    int get() const { return descriptor_; }

private:
    int descriptor_;
};

bool isPrivateFolder(const std::string &folder)
{
    const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat facts {};
    if (descriptor.get() < 0 || ::fstat(descriptor.get(), &facts) != 0)
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
