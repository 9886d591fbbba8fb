// SPDX-License-Identifier: Apache-2.0
#include "audio/executable_folder.h"

#include <unistd.h>

#include <climits>

namespace ostra::audio {

std::string executableFolder()
{
    std::string path(PATH_MAX, '\0'); // the kernel's own limit for what this link can hold
    const ssize_t byteCount = readlink("/proc/self/exe", path.data(), path.size());
    if (byteCount <= 0)
        return {};
    path.resize(static_cast<std::size_t>(byteCount));
    // A backslash is an ordinary character of a file name here and stays.
    return path.substr(0, path.rfind('/'));
}

} // namespace ostra::audio
