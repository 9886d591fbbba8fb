// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/refusing_allocator.h"

#include <array>
#include <exception>

#include <dlfcn.h>
#include <execinfo.h>

namespace {

const void *imageOf(const void *address)
{
    Dl_info info{};
    return dladdr(address, &info) != 0 ? info.dli_fbase : nullptr;
}

bool isAllocator(const void *address)
{
    Dl_info info{};
    if (dladdr(address, &info) == 0 || info.dli_saddr == nullptr)
        return false;
    return info.dli_saddr == reinterpret_cast<const void *>(static_cast<void *(*)(std::size_t)>(&operator new)) ||
           info.dli_saddr == reinterpret_cast<const void *>(static_cast<void *(*)(std::size_t)>(&operator new[]));
}

} // namespace

bool refusing_allocator::isAskedByThisProgram()
{
    // Texts and streams are allocated within the C++ library for whoever uses them.
    static const void *const program = imageOf(reinterpret_cast<const void *>(&isAskedByThisProgram));
    static const void *const standardLibrary = imageOf(reinterpret_cast<const void *>(&std::terminate));
    std::array<void *, 8> frames{};
    const int count = backtrace(frames.data(), static_cast<int>(frames.size()));
    bool isBelowAllocator = false;
    for (int index = 0; index < count; ++index) {
        const void *frame = frames.at(static_cast<std::size_t>(index));
        if (isAllocator(frame)) {
            isBelowAllocator = true;
            continue;
        }
        const void *image = imageOf(frame);
        if (isBelowAllocator && image != standardLibrary)
            return image == program;
    }
    return false;
}
