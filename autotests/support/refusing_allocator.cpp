// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/refusing_allocator.h"

#include <cstdlib>
#include <new>

namespace refusing_allocator {

std::size_t refusedByteCount = 0;
int allocationsUntilFailure = -1;

} // namespace refusing_allocator

void *operator new(std::size_t byteCount, const std::nothrow_t & /*tag*/) noexcept
{
    return byteCount == refusing_allocator::refusedByteCount ? nullptr : std::malloc(byteCount);
}

void *operator new(std::size_t byteCount)
{
    using refusing_allocator::allocationsUntilFailure;
    const bool isRefused = allocationsUntilFailure >= 0 && allocationsUntilFailure-- == 0;
    if (void *memory = isRefused ? nullptr : std::malloc(byteCount))
        return memory;
    throw std::bad_alloc();
}

void *operator new[](std::size_t byteCount) { return operator new(byteCount); } // a sanitizer brings one of its own

void operator delete(void *memory, const std::nothrow_t & /*tag*/) noexcept { std::free(memory); }
void operator delete(void *memory) noexcept { std::free(memory); }
void operator delete(void *memory, std::size_t /*byteCount*/) noexcept { std::free(memory); }
void operator delete[](void *memory) noexcept { std::free(memory); }
void operator delete[](void *memory, std::size_t /*byteCount*/) noexcept { std::free(memory); }
