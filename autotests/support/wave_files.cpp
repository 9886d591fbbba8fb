// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/wave_files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <QtEndian>

namespace wave_files {

namespace {

template <typename Number>
void append(QByteArray &out, Number value)
{
    const Number little = qToLittleEndian(value);
    out.append(reinterpret_cast<const char *>(&little), sizeof(little));
}

} // namespace

QByteArray wave(std::uint32_t sampleRate, std::uint16_t channelCount, std::uint32_t frameCount)
{
    const auto bytesPerFrame = static_cast<std::uint16_t>(2U * channelCount);
    QByteArray samples;
    for (std::uint32_t sample = 0; sample < frameCount * channelCount; ++sample)
        append<std::uint16_t>(samples, 1000);
    QByteArray out("RIFF");
    append<std::uint32_t>(out, static_cast<std::uint32_t>(36 + samples.size()));
    out.append("WAVEfmt ");
    append<std::uint32_t>(out, 16);
    append<std::uint16_t>(out, 1);
    append<std::uint16_t>(out, channelCount);
    append<std::uint32_t>(out, sampleRate);
    append<std::uint32_t>(out, sampleRate * bytesPerFrame);
    append<std::uint16_t>(out, bytesPerFrame);
    append<std::uint16_t>(out, 16);
    out.append("data");
    append<std::uint32_t>(out, static_cast<std::uint32_t>(samples.size()));
    return out + samples;
}

void write(const QString &path, const QByteArray &content)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    QCOMPARE(file.write(content), content.size());
}

QString clip(const QString &executableFolder, const QString &language, int digit)
{
    return QStringLiteral("%1/audio_files/%2/%3_%2.wav").arg(executableFolder, language).arg(digit);
}

void writeClipSet(const QString &executableFolder, const QString &language, const QByteArray &content)
{
    for (int digit = 0; digit <= 9; ++digit)
        write(clip(executableFolder, language, digit), content);
}

} // namespace wave_files
