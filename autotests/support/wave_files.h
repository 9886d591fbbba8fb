// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

/// WAVE files and clip sets that tests put on disk.
namespace wave_files {

/// A 16-bit PCM file of `frameCount` frames; every sample has the value 1000.
QByteArray wave(std::uint32_t sampleRate, std::uint16_t channelCount, std::uint32_t frameCount);

/// Writes `content`, making the folders above it. Fails the running test when it cannot.
void write(const QString &path, const QByteArray &content);

/// Makes the clip set of one language below `executableFolder`: all ten digits with the same content.
void writeClipSet(const QString &executableFolder, const QString &language, const QByteArray &content);

/// Path of one clip below `executableFolder`.
QString clip(const QString &executableFolder, const QString &language, int digit);

} // namespace wave_files
