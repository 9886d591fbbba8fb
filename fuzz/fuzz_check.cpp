// SPDX-License-Identifier: Apache-2.0
#include "fuzz/fuzz_check.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace fuzz {

void require(bool holds, const char *promise)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}

MemoryFile::MemoryFile() : descriptor_(memfd_create("fuzz", MFD_CLOEXEC))
{
    require(descriptor_ >= 0, "a file in memory can be made");
}

MemoryFile::~MemoryFile() { close(descriptor_); }

std::string MemoryFile::path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

void MemoryFile::setContent(const char *bytes, std::size_t byteCount) const
{
    const auto wanted = static_cast<ssize_t>(byteCount);
    require(ftruncate(descriptor_, 0) == 0 && pwrite(descriptor_, bytes, byteCount, 0) == wanted, "memory takes the input");
}

} // namespace fuzz
