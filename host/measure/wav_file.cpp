// SPDX-License-Identifier: Apache-2.0
#include "host/measure/wav_file.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <string_view>
#include <system_error>

namespace measure {
namespace {

using Bytes = std::span<const std::byte>;

constexpr std::size_t bytesPerSample = 2;
constexpr std::uintmax_t maxFileByteCount = std::uintmax_t{1} << 30;

std::uint32_t readU16(Bytes bytes, std::size_t offset)
{
    return std::to_integer<std::uint32_t>(bytes[offset]) | std::to_integer<std::uint32_t>(bytes[offset + 1]) << 8;
}

std::uint32_t readU32(Bytes bytes, std::size_t offset) { return readU16(bytes, offset) | readU16(bytes, offset + 2) << 16; }

bool hasTag(Bytes bytes, std::size_t offset, std::string_view tag)
{
    return std::memcmp(bytes.data() + offset, tag.data(), tag.size()) == 0;
}

struct Format {
    std::uint32_t sampleRate = 0;
    std::uint32_t channelCount = 0;
};

/// The format code; under the extensible header it is the first field of the sub-format.
std::uint32_t formatCode(Bytes chunk)
{
    constexpr std::uint32_t extensible = 0xFFFE;
    constexpr std::size_t extensibleByteCount = 40;
    constexpr std::size_t subFormatOffset = 24;
    const std::uint32_t code = readU16(chunk, 0);
    if (code != extensible || chunk.size() < extensibleByteCount)
        return code;
    return readU16(chunk, subFormatOffset);
}

std::optional<Format> parseFormat(Bytes chunk)
{
    constexpr std::size_t minByteCount = 16;
    constexpr std::uint32_t pcm = 1;
    if (chunk.size() < minByteCount || formatCode(chunk) != pcm)
        return std::nullopt;
    const Format format{.sampleRate = readU32(chunk, 4), .channelCount = readU16(chunk, 2)};
    const std::uint32_t blockAlign = readU16(chunk, 12);
    const std::uint32_t bitsPerSample = readU16(chunk, 14);
    if (bitsPerSample != 8 * bytesPerSample || blockAlign != format.channelCount * bytesPerSample)
        return std::nullopt;
    return format;
}

std::optional<std::vector<std::byte>> readFile(const std::filesystem::path &path)
{
    std::error_code error;
    const std::uintmax_t byteCount = std::filesystem::file_size(path, error);
    if (error || byteCount > maxFileByteCount)
        return std::nullopt;
    std::vector<std::byte> content(static_cast<std::size_t>(byteCount));
    std::ifstream stream(path, std::ios::binary);
    stream.read(reinterpret_cast<char *>(content.data()), static_cast<std::streamsize>(content.size()));
    if (!stream)
        return std::nullopt;
    return content;
}

} // namespace

std::optional<MonoSound> mixFrames(Bytes frames, std::uint32_t sampleRate, std::uint32_t channelCount)
{
    if (sampleRate == 0 || sampleRate > maxSampleRate || channelCount == 0 || channelCount > maxChannelCount)
        return std::nullopt;
    const std::size_t frameByteCount = channelCount * bytesPerSample;
    const float scale = 1.0F / (32768.0F * static_cast<float>(channelCount));
    MonoSound sound{.sampleRate = sampleRate, .samples = {}};
    sound.samples.reserve(frames.size() / frameByteCount);
    for (std::size_t offset = 0; frames.size() - offset >= frameByteCount; offset += frameByteCount) {
        int sum = 0;
        for (std::size_t byte = 0; byte < frameByteCount; byte += bytesPerSample)
            sum += static_cast<std::int16_t>(readU16(frames, offset + byte));
        sound.samples.push_back(static_cast<float>(sum) * scale);
    }
    return sound;
}

std::optional<MonoSound> parseWav(Bytes file)
{
    constexpr std::size_t riffByteCount = 12;
    constexpr std::size_t chunkHeaderByteCount = 8;
    if (file.size() < riffByteCount || !hasTag(file, 0, "RIFF") || !hasTag(file, 8, "WAVE"))
        return std::nullopt;
    std::optional<Format> format;
    Bytes rest = file.subspan(riffByteCount);
    while (rest.size() >= chunkHeaderByteCount) {
        const std::size_t byteCount = readU32(rest, 4);
        if (byteCount > rest.size() - chunkHeaderByteCount)
            return std::nullopt;
        const Bytes chunk = rest.subspan(chunkHeaderByteCount, byteCount);
        if (hasTag(rest, 0, "data"))
            return format ? mixFrames(chunk, format->sampleRate, format->channelCount) : std::nullopt;
        if (hasTag(rest, 0, "fmt ")) {
            format = parseFormat(chunk);
            if (!format)
                return std::nullopt;
        }
        // Chunks start at even offsets; the last one may lack its padding byte.
        const std::size_t paddedByteCount = chunkHeaderByteCount + byteCount + byteCount % 2;
        rest = rest.subspan(std::min(paddedByteCount, rest.size()));
    }
    return std::nullopt;
}

std::optional<MonoSound> readWavFile(const std::filesystem::path &path)
{
    const auto content = readFile(path);
    return content ? parseWav(*content) : std::nullopt;
}

std::optional<MonoSound> readRawFile(const std::filesystem::path &path, std::uint32_t sampleRate, std::uint32_t channelCount)
{
    const auto content = readFile(path);
    return content ? mixFrames(*content, sampleRate, channelCount) : std::nullopt;
}

} // namespace measure
