// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

/// Bytes that this process has allocated and not freed, as closely as the platform tells: live heap blocks on Linux, private
/// memory on Windows.
std::size_t liveByteCount();
