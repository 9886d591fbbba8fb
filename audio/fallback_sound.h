// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace ostra::audio {

inline constexpr std::size_t fallbackSoundByteCount = 55374;

/// A complete RIFF/WAVE file held in the library's read-only data: a chime of 13824 frames (0.63 s), 2 channels, 16 bits,
/// 22050 frames per second. It is never played: it gives a device a format to report when no clip could be loaded.
std::span<const std::uint8_t, fallbackSoundByteCount> fallbackSound() noexcept;

} // namespace ostra::audio
