// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/hostile_waves.h"

#include <QtEndian>

#include <cstdint>
#include <limits>

namespace hostile_waves {

namespace {

constexpr std::uint32_t asItIs = std::numeric_limits<std::uint32_t>::max() - 1; // the length that is true
constexpr std::uint32_t greatest = std::numeric_limits<std::uint32_t>::max();

enum Tag : std::uint16_t { pcm = 1, msAdpcm = 2, floating = 3, aLaw = 6, imaAdpcm = 0x11, mp3 = 0x55, extensible = 0xFFFE };

struct Format {
    std::uint16_t tag = pcm;
    std::uint16_t channelCount = 2;
    std::uint32_t rate = 44100;
    std::uint16_t blockAlign = 4;
    std::uint16_t bits = 16;
    QByteArray extension{};
};

template <typename Number>
QByteArray little(Number value)
{
    const Number bytes = qToLittleEndian(value);
    return QByteArray(reinterpret_cast<const char *>(&bytes), sizeof(bytes));
}

QByteArray samples(qsizetype byteCount) { return QByteArray(byteCount, '\x11'); }

QByteArray chunk(const char *name, const QByteArray &content, std::uint32_t length = asItIs)
{
    return name + little(length == asItIs ? static_cast<std::uint32_t>(content.size()) : length) + content;
}

QByteArray formatContent(const Format &format)
{
    return little<std::uint16_t>(format.tag) + little(format.channelCount) + little(format.rate) +
           little(format.rate * format.blockAlign) + little(format.blockAlign) + little(format.bits) + format.extension;
}

QByteArray riff(const QByteArray &chunks, std::uint32_t length = asItIs) { return chunk("RIFF", "WAVE" + chunks, length); }

QByteArray wave(const Format &format, const QByteArray &data = samples(400))
{
    return riff(chunk("fmt ", formatContent(format)) + chunk("data", data));
}

QByteArray waveOfRate(std::uint32_t rate) { return wave({.rate = rate}); }

QByteArray waveOfChannels(std::uint16_t channelCount)
{
    return wave({.channelCount = channelCount, .blockAlign = static_cast<std::uint16_t>(2U * channelCount)}, samples(2040));
}

QByteArray waveOfBits(std::uint16_t bits, std::uint16_t blockAlign, Tag tag = pcm)
{
    return wave({.tag = tag, .blockAlign = blockAlign, .bits = bits});
}

QByteArray waveOfDataLength(std::uint32_t length, qsizetype byteCount)
{
    return riff(chunk("fmt ", formatContent({})) + chunk("data", samples(byteCount), length));
}

QByteArray manyEmptyChunks(int count)
{
    QByteArray chunks;
    for (int number = 0; number < count; ++number)
        chunks += chunk("LIST", {});
    return riff(chunks + chunk("fmt ", formatContent({})) + chunk("data", samples(16)));
}

// Two bytes of an extension follow, then the samples in a block; the Microsoft kind has a table of coefficients as well.
QByteArray imaWave(std::uint16_t samplesPerBlock)
{
    return wave({.tag = imaAdpcm,
                 .channelCount = 1,
                 .blockAlign = 256,
                 .bits = 4,
                 .extension = little<std::uint16_t>(2) + little(samplesPerBlock)},
                samples(512));
}

QByteArray microsoftWave(std::uint16_t coefficientCount)
{
    return wave({.tag = msAdpcm,
                 .channelCount = 1,
                 .blockAlign = 256,
                 .bits = 4,
                 .extension = little<std::uint16_t>(32) + little<std::uint16_t>(500) + little(coefficientCount) + samples(28)},
                samples(512));
}

std::vector<File> lyingLengths()
{
    const QByteArray sound = wave({});
    return {
        {"data_longer_than_the_file", waveOfDataLength(400, 100), true},
        {"data_of_sixteen_megabytes", waveOfDataLength(0x1000000, 400), true},
        {"data_of_four_gigabytes", waveOfDataLength(0xFFFFFFF0U, 400), {}},
        {"data_of_the_greatest_length", waveOfDataLength(greatest, 400), {}},
        {"data_of_no_bytes", waveOfDataLength(0, 0), true},
        {"data_of_half_a_frame", waveOfDataLength(403, 403), true},
        {"riff_of_no_bytes", riff(sound.mid(12), 0), true},
        {"riff_of_the_greatest_length", riff(sound.mid(12), greatest), true},
        {"format_of_the_greatest_length", riff(chunk("fmt ", formatContent({}), greatest) + chunk("data", samples(400))),
         false},
        {"format_too_short", riff(chunk("fmt ", formatContent({}).left(14)) + chunk("data", samples(400))), false},
        {"fact_of_too_many_samples",
         riff(chunk("fmt ", formatContent({.tag = aLaw, .channelCount = 1, .blockAlign = 1, .bits = 8})) +
              chunk("fact", little(greatest)) + chunk("data", samples(400))),
         true},
    };
}

std::vector<File> brokenStructures()
{
    const QByteArray sound = wave({});
    return {
        {"empty_file", {}, false},
        {"four_bytes", sound.left(4), false},
        {"cut_within_the_format", sound.left(24), false},
        {"cut_before_the_data", sound.left(36), false},
        {"no_riff", "ID3 and then some music", false},
        {"big_endian_riff", "RIFX" + sound.mid(4), false},
        {"riff_of_another_kind", chunk("RIFF", "AVI " + sound.mid(12)), false},
        {"no_format", riff(chunk("data", samples(400))), false},
        {"data_before_the_format", riff(chunk("data", samples(400)) + chunk("fmt ", formatContent({}))), false},
        {"four_hundred_empty_chunks", manyEmptyChunks(400), true},
    };
}

std::vector<File> oddFormats()
{
    return {
        {"no_channels", waveOfChannels(0), false},
        {"nine_channels", waveOfChannels(9), true},
        {"most_channels", waveOfChannels(255), true},
        {"too_many_channels", waveOfChannels(256), false},
        {"rate_of_nothing", waveOfRate(0), false},
        {"rate_of_one", waveOfRate(1), true},
        {"rate_of_a_hundred", waveOfRate(100), true},
        {"greatest_rate", waveOfRate(0x7FFFFFFFU), true},
        {"rate_below_nothing", waveOfRate(greatest), false},
        {"seven_bits", waveOfBits(7, 2), false},
        {"twenty_four_bits", waveOfBits(24, 6), true},
        {"floats", waveOfBits(32, 8, floating), true},
        {"floats_of_sixty_four_bits", waveOfBits(64, 16, floating), false},
        {"frames_of_no_bytes", waveOfBits(16, 0), false},
        {"frames_too_long", waveOfBits(16, 400), false},
        {"mp3", waveOfBits(16, 4, mp3), false},
        {"extension_missing", waveOfBits(16, 4, extensible), false},
        {"ima_adpcm_of_no_samples", imaWave(0), true},
        {"ima_adpcm_of_too_many_samples", imaWave(0xFFFF), false},
        {"ms_adpcm_of_no_coefficients", microsoftWave(0), false},
        {"ms_adpcm_of_too_many_coefficients", microsoftWave(0xFFFF), false},
    };
}

} // namespace

std::vector<File> files()
{
    std::vector<File> all = lyingLengths();
    for (const auto &more : {brokenStructures(), oddFormats()})
        all.insert(all.end(), more.begin(), more.end());
    return all;
}

} // namespace hostile_waves
