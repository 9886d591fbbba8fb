// SPDX-License-Identifier: Apache-2.0
#include "host/gui/process_end.h"

#include "contract/result_codes.h"

#include <atomic>
#include <cstdlib>

namespace host {

namespace {

constexpr int freeEnd = -1;
constexpr int notCompleted = static_cast<int>(ostra::result::notCompleted);

std::atomic<int> guardedCode = freeEnd;

// Without the destructors of a program that is in the middle of its work.
extern "C" void endGuarded()
{
    if (const int code = guardedCode; code != freeEnd)
        std::_Exit(code);
}

extern "C" void endAborted(int /*signal*/) { std::_Exit(notCompleted); }

} // namespace

void guardProcessEnd()
{
    int free = freeEnd;
    guardedCode.compare_exchange_strong(free, notCompleted);
    std::atexit(&endGuarded); // room for 32 is guaranteed
    guardAbort(&endAborted);
}

void noteVerdict(int exitCode) noexcept
{
    if (guardedCode != freeEnd)
        guardedCode = exitCode;
}

void releaseProcessEnd() noexcept { guardedCode = freeEnd; }

} // namespace host
