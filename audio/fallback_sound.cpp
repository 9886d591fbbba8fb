// SPDX-License-Identifier: Apache-2.0
#include "audio/fallback_sound.h"

#include <array>
#include <string_view>

namespace ostra::audio {

namespace {

constexpr std::uint32_t frameCount = 13824;
constexpr std::uint32_t sampleRate = 22050;
constexpr std::uint32_t channelCount = 2;
constexpr std::uint32_t bytesPerFrame = 4;
constexpr std::uint32_t dataByteCount = frameCount * bytesPerFrame;

using Bytes = std::array<std::uint8_t, fallbackSoundByteCount>;

// Writes the little-endian fields of a RIFF file one after the other.
struct Writer {
    Bytes bytes{};
    std::size_t position = 0;

    constexpr void byte(std::uint32_t value) { bytes[position++] = static_cast<std::uint8_t>(value & 0xFFU); }
    constexpr void text(std::string_view characters)
    {
        for (const char character : characters)
            byte(static_cast<std::uint8_t>(character));
    }
    constexpr void u16(std::uint32_t value)
    {
        byte(value);
        byte(value >> 8U);
    }
    constexpr void u32(std::uint32_t value)
    {
        u16(value);
        u16(value >> 16U);
    }
};

// Half a period of a sine as a parabola, 16-bit phase in, -8192..8191 out: smooth enough for a chime, and exact in integers,
// so that every compiler makes the same bytes.
constexpr std::int32_t parabolicSine(std::uint32_t phase)
{
    const auto half = static_cast<std::int32_t>(phase & 0x7FFFU);
    const std::int32_t arch = ((half >> 4) * (2048 - (half >> 4))) >> 7; // 0..8192 at mid-arch
    return (phase & 0x8000U) != 0 ? -arch : arch;
}

// A tone of `frequency` Hz that fades out over the whole sound.
constexpr std::int32_t sampleAt(std::uint32_t frame, std::uint32_t frequency)
{
    const std::uint32_t phase = static_cast<std::uint32_t>(std::uint64_t{frame} * frequency * 65536U / sampleRate) & 0xFFFFU;
    const auto remaining = static_cast<std::int32_t>((frameCount - frame) * 256U / frameCount);
    return parabolicSine(phase) * remaining / 256;
}

constexpr Bytes makeSound()
{
    Writer out;
    out.text("RIFF");
    out.u32(static_cast<std::uint32_t>(fallbackSoundByteCount) - 8);
    out.text("WAVEfmt ");
    out.u32(16);
    out.u16(1); // PCM
    out.u16(channelCount);
    out.u32(sampleRate);
    out.u32(sampleRate * bytesPerFrame);
    out.u16(bytesPerFrame);
    out.u16(16); // bits per sample
    out.text("LIST");
    out.u32(26);
    out.text("INFOISFT");
    out.u32(14);
    out.text(std::string_view("Lavf58.39.101\0", 14)); // part of the layout that readers of the host know
    out.text("data");
    out.u32(dataByteCount);
    for (std::uint32_t frame = 0; frame < frameCount; ++frame) {
        out.u16(static_cast<std::uint32_t>(sampleAt(frame, 440)));
        out.u16(static_cast<std::uint32_t>(sampleAt(frame, 660)));
    }
    return out.bytes;
}

constexpr Bytes sound = makeSound();

} // namespace

std::span<const std::uint8_t, fallbackSoundByteCount> fallbackSound() noexcept { return sound; }

} // namespace ostra::audio
