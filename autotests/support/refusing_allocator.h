// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

/// Replaces the allocation functions of the whole program it is linked into: the way to make the one allocation fail that may
/// fail without an exception.
namespace refusing_allocator {

/// Non-throwing allocations of exactly this size are refused; 0 refuses none.
extern std::size_t refusedByteCount;

/// How many ordinary allocations succeed before one throws; negative: none throws. Counts down, so that it
/// happens once and a test can count what a call allocates.
extern int allocationsUntilFailure;

} // namespace refusing_allocator
