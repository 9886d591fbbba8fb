// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <cstddef>

/// Replaces the allocation functions of the whole program it is linked into: the way to make the one allocation fail that may
/// fail without an exception.
namespace refusing_allocator {

/// Non-throwing allocations of exactly this size are refused; 0 refuses none.
extern std::size_t refusedByteCount;

/// How many ordinary allocations succeed before one throws; negative: none throws. Counts down, so that it
/// happens once and a test can count what a call allocates.
extern std::atomic<int> allocationsUntilFailure;

/// Which ordinary allocations are counted and refused; null: all of them. It must not allocate.
using Choice = bool (*)();
extern std::atomic<Choice> choice;

/// Whether the program itself asked for the memory, also by way of the C++ library, and no library that it uses: those cannot
/// all cope with a refusal. On Windows only the program itself gets its memory here.
bool isAskedByThisProgram();

/// The thread that makes one gets what it asks for, and is not counted.
class Pause {
public:
    Pause();
    ~Pause();
    Pause(const Pause &) = delete;
    Pause &operator=(const Pause &) = delete;
};

} // namespace refusing_allocator
