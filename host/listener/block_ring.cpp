// SPDX-License-Identifier: Apache-2.0
#include "host/listener/block_ring.h"

#include <algorithm>

namespace host {

void BlockRing::write(std::span<const float> interleaved, SteadyTime end, bool isHeard) noexcept
{
    constexpr std::size_t maxSampleCount = SoundBlock::maxFrameCount * captureChannelCount;
    while (!interleaved.empty()) {
        const auto part = interleaved.first(std::min(interleaved.size(), maxSampleCount));
        interleaved = interleaved.subspan(part.size());
        const auto framesAfter = static_cast<std::int64_t>(interleaved.size() / captureChannelCount);
        writeBlock(part, end - std::chrono::microseconds(framesAfter * 1'000'000 / captureRate), isHeard);
    }
}

void BlockRing::writeBlock(std::span<const float> interleaved, SteadyTime end, bool isHeard) noexcept
{
    const std::uint64_t written = written_.load(std::memory_order_relaxed);
    if (written - read_.load(std::memory_order_acquire) >= blockCount) {
        droppedFrameCount_.fetch_add(interleaved.size() / captureChannelCount, std::memory_order_relaxed);
        return;
    }
    SoundBlock &block = (*blocks_)[written % blockCount];
    block.end = end;
    block.isHeard = isHeard;
    block.frameCount = interleaved.size() / captureChannelCount;
    std::copy(interleaved.begin(), interleaved.end(), block.samples.begin());
    written_.store(written + 1, std::memory_order_release);
}

const SoundBlock *BlockRing::oldest() const noexcept
{
    const std::uint64_t read = read_.load(std::memory_order_relaxed);
    return read == written_.load(std::memory_order_acquire) ? nullptr : &(*blocks_)[read % blockCount];
}

void BlockRing::release() noexcept { read_.store(read_.load(std::memory_order_relaxed) + 1, std::memory_order_release); }

} // namespace host
