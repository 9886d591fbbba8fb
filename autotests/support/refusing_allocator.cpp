// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/refusing_allocator.h"

#include <cstdlib>
#include <new>

namespace refusing_allocator {

std::size_t refusedByteCount = 0;
std::atomic<int> allocationsUntilFailure = -1;
std::atomic<Choice> choice = nullptr;

namespace {

thread_local int pauseCount = 0;

bool isRefused()
{
    if (allocationsUntilFailure < 0 || pauseCount > 0)
        return false;
    const Choice isCounted = choice;
    if (isCounted != nullptr) {
        const Pause pause;
        if (!isCounted())
            return false;
    }
    return allocationsUntilFailure-- == 0;
}

} // namespace

Pause::Pause() { ++pauseCount; }
Pause::~Pause() { --pauseCount; }

} // namespace refusing_allocator

void *operator new(std::size_t byteCount, const std::nothrow_t & /*tag*/) noexcept
{
    return byteCount == refusing_allocator::refusedByteCount ? nullptr : std::malloc(byteCount);
}

void *operator new(std::size_t byteCount)
{
    if (void *memory = refusing_allocator::isRefused() ? nullptr : std::malloc(byteCount))
        return memory;
    throw std::bad_alloc();
}

void *operator new[](std::size_t byteCount) { return operator new(byteCount); } // a sanitizer brings one of its own

void operator delete(void *memory, const std::nothrow_t & /*tag*/) noexcept { std::free(memory); }
void operator delete(void *memory) noexcept { std::free(memory); }
void operator delete(void *memory, std::size_t /*byteCount*/) noexcept { std::free(memory); }
void operator delete[](void *memory) noexcept { std::free(memory); }
void operator delete[](void *memory, std::size_t /*byteCount*/) noexcept { std::free(memory); }
