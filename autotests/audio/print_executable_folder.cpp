// SPDX-License-Identifier: Apache-2.0
// Prints the folder of the running executable, for a test that copies this program to odd places.
#include "audio/executable_folder.h"

#include <cstdio>

int main(int argumentCount, char **arguments)
{
    const std::string folder = ostra::audio::executableFolder();
    // A file, since a Windows program's output does not always reach a pipe here.
    FILE *out = argumentCount > 1 ? std::fopen(arguments[1], "wb") : stdout;
    if (out == nullptr)
        return 2;
    std::fwrite(folder.data(), 1, folder.size(), out);
    return std::fclose(out) == 0 ? 0 : 2;
}
