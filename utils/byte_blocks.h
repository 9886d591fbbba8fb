// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// Eight bytes of a text looked at in one go, in whatever order the machine has them. Not every C library searches faster than
/// byte by byte. Pure functions, callable from any thread.
namespace ostra::utils::byte_blocks {

constexpr std::size_t byteCount = sizeof(std::uint64_t);
constexpr std::uint64_t ones = 0x0101010101010101U;     ///< 1 in each byte
constexpr std::uint64_t highBits = 0x8080808080808080U; ///< the highest bit of each byte

/// The first eight bytes of `text`, which has to have as many.
inline std::uint64_t firstOf(std::string_view text) noexcept
{
    std::uint64_t block = 0;
    std::memcpy(&block, text.data(), byteCount);
    return block;
}

/// `byte` in each byte.
constexpr std::uint64_t allOf(char byte) noexcept { return ones * static_cast<unsigned char>(byte); }

/// True when one byte of the block is zero: a byte that lacks its highest bit gets it only by being zero or by a borrow, and
/// only a zero below it starts one.
constexpr bool hasZero(std::uint64_t block) noexcept { return ((block - ones) & ~block & highBits) != 0; }

} // namespace ostra::utils::byte_blocks
