// SPDX-License-Identifier: Apache-2.0
// The sanitizer's allocator keeps freed blocks for a while; only it knows which are live.
#include "autotests/support/live_memory.h"

// Its header is not installed with the compiler.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();

std::size_t liveByteCount() { return __sanitizer_get_current_allocated_bytes(); }
