// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace ostra::utils {

/// True when every byte of `bytes` belongs to a well-formed UTF-8 sequence (RFC 3629: no overlong forms, no
/// surrogates, nothing above U+10FFFF).
bool isUtf8(std::string_view bytes) noexcept;

/// True when every byte of `bytes` is ASCII and none is a carriage return.
bool isAsciiWithoutCarriageReturn(std::string_view bytes) noexcept;

/// Copy of `bytes` in which every byte that starts no well-formed sequence became U+FFFD, as QString::fromUtf8 does.
std::string repairedUtf8(std::string_view bytes);

} // namespace ostra::utils
