// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/workloads.h"

#include "contract/style_manager.h"
#include "utils/system_colors.h"

#include <QRegularExpression>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>

namespace bench {

namespace {

void appendSection(QByteArray &text, std::size_t section, std::size_t keyCount)
{
    text += "[SECTION_" + QByteArray::number(static_cast<qulonglong>(section)) + "]\n";
    for (std::size_t key = 0; key < keyCount; ++key)
        text += "key_" + QByteArray::number(static_cast<qulonglong>(key)) + " = value of " +
                QByteArray::number(static_cast<qulonglong>(section * keyCount + key)) + "\n";
}

} // namespace

QByteArray productConfiguration()
{
    QByteArray text = "; settings of the diagnostics\n[LANGUAGE]\nDEFAULT_LANGUAGE = english\n\n";
    for (std::size_t section = 0; section < 9; ++section) {
        appendSection(text, section, 8);
        text += "\n";
    }
    while (text.count('\n') < 100)
        text += "; reserved\n";
    return text;
}

QByteArray longConfiguration(std::size_t lineCount)
{
    QByteArray text;
    for (std::size_t section = 0; section < lineCount / 100; ++section)
        appendSection(text, section, 99);
    return text;
}

QByteArray longLineConfiguration(std::size_t byteCount)
{
    return "[LONG]\nkey=" + QByteArray(static_cast<qsizetype>(byteCount), 'x') + "\n";
}

QString productSheet() { return QString::fromStdString(ostra::utils::style_manager::StyleManager::instance()->Stylesheet()); }

QString longSheet(qsizetype length)
{
    static const QRegularExpression name(QStringLiteral("#((?![0-9A-F]{6}\\b)[A-Za-z_][A-Za-z_0-9]*)"));
    const QString sheet = productSheet();
    QString text;
    for (int copy = 0; text.size() < length; ++copy)
        text += QString(sheet).replace(name, QStringLiteral("#\\1_%1").arg(copy));
    return text;
}

QList<QColor> contrastColors()
{
    QList<QColor> colors;
    for (int index = 0; index < 30; ++index)
        colors.append(index % 2 == 0 ? QColor(Qt::black) : QColor(255, 255, 255 - index));
    return colors;
}

measure::DigitClips digitClips()
{
    auto clips = measure::readDigitClips(std::filesystem::path(AUDIO_CLIPS_DIR), "en_US");
    if (!clips) {
        std::fputs("the digits' clips are missing\n", stderr);
        std::exit(2);
    }
    return *std::move(clips);
}

measure::MonoSound digitCapture(const measure::DigitClips &clips)
{
    measure::MonoSound capture{48000, std::vector<float>(48000 * 16 / 10)};
    std::minstd_rand generator(1); // its numbers are the same with every library
    for (float &sample : capture.samples)
        sample = (static_cast<float>(generator() % 2000) - 1000.0F) * 1e-6F;
    const auto &clip = clips[7].samples;
    const std::size_t start = 20000;
    for (std::size_t frame = 0; frame < std::min(clip.size(), capture.samples.size() - start); ++frame)
        capture.samples[start + frame] += clip[frame] * 0.5F;
    return capture;
}

} // namespace bench
