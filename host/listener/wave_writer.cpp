// SPDX-License-Identifier: Apache-2.0
#include "host/listener/wave_writer.h"

#include "host/listener/block_ring.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr std::uint32_t bytesPerSample = 2;
constexpr std::uint32_t frameByteCount = bytesPerSample * captureChannelCount;
constexpr std::uint32_t headerByteCount = 44;
constexpr std::uint32_t riffPrefixByteCount = 8;
constexpr qint64 dataLengthOffset = 40;
constexpr qint64 riffLengthOffset = 4;
constexpr std::uint32_t mostBytes = 0x7FFF'FFFF - headerByteCount;

template <typename Number>
void add(QByteArray &bytes, Number number)
{
    const Number little = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char *>(&little), sizeof little);
}

QByteArray header()
{
    constexpr std::uint16_t pcm = 1;
    QByteArray bytes("RIFF");
    add<std::uint32_t>(bytes, headerByteCount - riffPrefixByteCount);
    bytes += "WAVEfmt ";
    add<std::uint32_t>(bytes, 16);
    add<std::uint16_t>(bytes, pcm);
    add<std::uint16_t>(bytes, captureChannelCount);
    add<std::uint32_t>(bytes, captureRate);
    add<std::uint32_t>(bytes, captureRate * frameByteCount);
    add<std::uint16_t>(bytes, static_cast<std::uint16_t>(frameByteCount));
    add<std::uint16_t>(bytes, bytesPerSample * 8);
    bytes += "data";
    add<std::uint32_t>(bytes, 0);
    return bytes;
}

QByteArray bytesOf(std::span<const float> samples)
{
    constexpr float scale = 32768.0F;
    QByteArray bytes;
    bytes.reserve(static_cast<qsizetype>(samples.size() * bytesPerSample));
    for (const float sample : samples)
        add(bytes, static_cast<std::int16_t>(std::clamp(std::round(sample * scale), -scale, scale - 1)));
    return bytes;
}

QByteArray length(std::uint32_t byteCount)
{
    QByteArray bytes;
    add(bytes, byteCount);
    return bytes;
}

} // namespace

bool WaveWriter::open(const QString &file)
{
    file_.setFileName(file);
    const QByteArray bytes = header();
    const bool isOpen = file_.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered);
    if (isOpen && file_.write(bytes) == bytes.size())
        return true;
    errorText_ = file_.errorString();
    file_.close();
    return false;
}

bool WaveWriter::append(std::span<const float> interleaved)
{
    const QByteArray bytes = bytesOf(interleaved);
    if (isFull_ || bytes.size() > qint64{mostBytes} - dataByteCount_)
        return false;
    isFull_ = !file_.seek(headerByteCount + dataByteCount_) || file_.write(bytes) != bytes.size();
    if (isFull_)
        return false;
    dataByteCount_ += static_cast<std::uint32_t>(bytes.size());
    return writeLengths();
}

bool WaveWriter::writeLengths()
{
    return file_.seek(riffLengthOffset) &&
           file_.write(length(dataByteCount_ + headerByteCount - riffPrefixByteCount)) == sizeof dataByteCount_ &&
           file_.seek(dataLengthOffset) && file_.write(length(dataByteCount_)) == sizeof dataByteCount_;
}

} // namespace host
