// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

namespace measure {

/// One channel of sound.
struct MonoSound {
    /// Frames per second, at least 1.
    std::uint32_t sampleRate = 0;
    /// One value per frame, -1 to below 1. May be empty.
    std::vector<float> samples;
};

/// Highest rate and channel count that the readers take; anything above is a damaged header.
constexpr std::uint32_t maxSampleRate = 768'000;
constexpr std::uint32_t maxChannelCount = 64;

/// Mixes interleaved signed 16-bit little-endian frames to one channel: the mean of the channels, so two channels of
/// opposite polarity cancel. Bytes after the last whole frame are ignored.
/// \return nothing when rate or channel count is 0 or above its maximum.
std::optional<MonoSound> mixFrames(std::span<const std::byte> frames, std::uint32_t sampleRate, std::uint32_t channelCount);

/// Reads a RIFF/WAVE file held in memory: 16-bit PCM, also under the extensible header; unknown chunks are skipped.
/// \return nothing when it is anything else, or when a chunk up to the data claims more bytes than there are.
std::optional<MonoSound> parseWav(std::span<const std::byte> file);

/// parseWav() of a file's content; nothing when the file cannot be read or exceeds 1 GiB.
std::optional<MonoSound> readWavFile(const std::filesystem::path &path);

/// mixFrames() of a file's content; nothing when the file cannot be read or exceeds 1 GiB.
std::optional<MonoSound> readRawFile(const std::filesystem::path &path, std::uint32_t sampleRate, std::uint32_t channelCount);

} // namespace measure
