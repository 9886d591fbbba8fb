// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

namespace host {

using SteadyTime = std::chrono::steady_clock::time_point;

constexpr std::uint32_t captureRate = 48000;
constexpr std::size_t captureChannelCount = 2;

/// A stretch of captured sound.
struct SoundBlock {
    static constexpr std::size_t maxFrameCount = 1024;

    SteadyTime end;      ///< when its last frame arrived
    bool isHeard = true; ///< false for silence that stands for time of which nothing is known
    std::size_t frameCount = 0;
    std::array<float, maxFrameCount * captureChannelCount> samples{}; ///< interleaved

    std::span<const float> frames() const { return std::span(samples).first(frameCount * captureChannelCount); }
};

/// Hands blocks from the sound library's thread to the program's. One thread writes, one reads; neither waits, locks or
/// allocates. Holds 5.4 s at least; what comes while it is full is counted and dropped.
class BlockRing {
public:
    /// Writing thread: copies interleaved frames that ended at `end`. `isHeard` as in `SoundBlock`.
    void write(std::span<const float> interleaved, SteadyTime end, bool isHeard = true) noexcept;

    /// Reading thread: the oldest block, or null when there is none. Valid until `release`.
    const SoundBlock *oldest() const noexcept;
    void release() noexcept;

    std::uint64_t droppedFrameCount() const noexcept { return droppedFrameCount_.load(std::memory_order_relaxed); }

private:
    static constexpr std::size_t blockCount = 256;

    void writeBlock(std::span<const float> interleaved, SteadyTime end, bool isHeard) noexcept;

    std::unique_ptr<std::array<SoundBlock, blockCount>> blocks_ = std::make_unique<std::array<SoundBlock, blockCount>>();
    std::atomic<std::uint64_t> written_{0};
    std::atomic<std::uint64_t> read_{0};
    std::atomic<std::uint64_t> droppedFrameCount_{0};
};

} // namespace host
