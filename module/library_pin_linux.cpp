// SPDX-License-Identifier: Apache-2.0
#include "module/library_pin.h"

#include <dlfcn.h>

namespace ostra {

void pinLibrary() noexcept
{
    static const char anchor = 0; // lies inside this library
    Dl_info library{};
    if (dladdr(&anchor, &library) == 0)
        return;
    // The handle is not kept: the flag outlives it.
    if (void *handle = dlopen(library.dli_fname, RTLD_NOW | RTLD_NOLOAD | RTLD_NODELETE))
        dlclose(handle);
}

} // namespace ostra
