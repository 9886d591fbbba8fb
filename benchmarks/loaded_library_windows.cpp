// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/loaded_library.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>

namespace bench {

LoadedLibrary::LoadedLibrary(const char *path) : handle_(LoadLibraryA(path))
{
    if (handle_ != nullptr)
        return;
    std::fprintf(stderr, "%s cannot be loaded: %lu\n", path, GetLastError());
    std::exit(2);
}

void *LoadedLibrary::address(const char *name) const
{
    if (const FARPROC found = GetProcAddress(static_cast<HMODULE>(handle_), name))
        return std::bit_cast<void *>(found);
    std::fprintf(stderr, "no function %s\n", name);
    std::exit(2);
}

} // namespace bench
