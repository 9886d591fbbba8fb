// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/loaded_library.h"

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

namespace bench {

LoadedLibrary::LoadedLibrary(const char *path) : handle_(dlopen(path, RTLD_NOW))
{
    if (handle_ != nullptr)
        return;
    std::fprintf(stderr, "%s\n", dlerror());
    std::exit(2);
}

void *LoadedLibrary::address(const char *name) const
{
    if (void *found = dlsym(handle_, name))
        return found;
    std::fprintf(stderr, "%s\n", dlerror());
    std::exit(2);
}

} // namespace bench
