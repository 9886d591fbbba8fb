// SPDX-License-Identifier: Apache-2.0
#include "host/listener/mix_format.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace host {

namespace {

std::size_t byteCountOf(SampleKind kind)
{
    switch (kind) {
    case SampleKind::int16:
        return 2;
    case SampleKind::int24:
        return 3;
    case SampleKind::float32:
    case SampleKind::int32:
        return 4;
    case SampleKind::unknown:
        break;
    }
    return 0;
}

// The sample's bytes at the top of 32 bits, so that integers of every width have one scale.
std::uint32_t topBits(std::span<const std::byte> sample)
{
    std::uint32_t bits = 0;
    for (const std::byte byte : sample)
        bits = (bits >> 8U) | (std::to_integer<std::uint32_t>(byte) << 24U);
    return bits;
}

float valueOf(std::span<const std::byte> sample, SampleKind kind)
{
    constexpr double fullScale = 2147483648.0;
    const std::uint32_t bits = topBits(sample);
    if (kind != SampleKind::float32)
        return static_cast<float>(static_cast<double>(std::bit_cast<std::int32_t>(bits)) / fullScale);
    const auto value = std::bit_cast<float>(bits);
    return std::isfinite(value) ? value : 0.0F;
}

} // namespace

std::size_t MixFormat::frameByteCount() const { return byteCountOf(kind) * channelCount; }

void appendStereo(std::span<const std::byte> frames, const MixFormat &format, std::vector<float> &stereo)
{
    if (!format.isKnown())
        return;
    const std::size_t sampleByteCount = byteCountOf(format.kind);
    const std::size_t right = std::min<std::size_t>(1, format.channelCount - 1) * sampleByteCount;
    for (; frames.size() >= format.frameByteCount(); frames = frames.subspan(format.frameByteCount())) {
        stereo.push_back(valueOf(frames.first(sampleByteCount), format.kind));
        stereo.push_back(valueOf(frames.subspan(right, sampleByteCount), format.kind));
    }
}

} // namespace host
