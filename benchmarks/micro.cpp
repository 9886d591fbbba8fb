// SPDX-License-Identifier: Apache-2.0
// Absolute times and how they grow, for whoever works on this code: nothing here is a goal.
#include "audio/transfer_buffer.h"
#include "benchmarks/workloads.h"
#include "host/measure/matched_filter.h"
#include "resources/icons.h"
#include "utils/config_reader.h"
#include "utils/high_contrast_style.h"
#include "utils/icon_recolouring.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace {

std::string fileWith(const QTemporaryDir &folder, const QByteArray &content)
{
    QFile file(folder.filePath(QStringLiteral("config.ini")));
    if (file.open(QIODevice::WriteOnly))
        file.write(content);
    return file.fileName().toStdString();
}

void readConfiguration(benchmark::State &state, const QByteArray &content)
{
    const QTemporaryDir folder;
    const std::string file = fileWith(folder, content);
    for (auto turn : state) {
        ostra::utils::IniConfiguration configuration;
        benchmark::DoNotOptimize(ostra::utils::readConfigFile(file, configuration));
    }
    state.SetComplexityN(state.range(0));
    state.SetBytesProcessed(state.iterations() * content.size());
}

void configLines(benchmark::State &state)
{
    readConfiguration(state, bench::longConfiguration(static_cast<std::size_t>(state.range(0))));
}

void configLongLine(benchmark::State &state)
{
    readConfiguration(state, bench::longLineConfiguration(static_cast<std::size_t>(state.range(0))));
}

void captureCallback(benchmark::State &state)
{
    constexpr std::uint32_t byteCount = 64U << 20U;
    std::vector<std::uint8_t> stream(static_cast<std::size_t>(state.range(0)) * 8);
    ostra::audio::TransferBuffer buffer;
    buffer.bind(std::make_unique<std::uint8_t[]>(byteCount), byteCount);
    for (auto turn : state) {
        ostra::audio::TransferBuffer::capture(&buffer, stream.data(), static_cast<int>(stream.size()));
        if (buffer.position() + stream.size() >= byteCount) {
            state.PauseTiming();
            buffer.bind(std::make_unique<std::uint8_t[]>(byteCount), byteCount);
            state.ResumeTiming();
        }
    }
}

void contrastSheet(benchmark::State &state)
{
    const QString sheet = bench::longSheet(state.range(0));
    const QList<QColor> colors = bench::contrastColors();
    for (auto turn : state)
        benchmark::DoNotOptimize(ostra::utils::highContrastStyleSheet(sheet, colors, {}));
    state.SetComplexityN(state.range(0));
}

void recolouredIcon(benchmark::State &state)
{
    const QString value = QStringLiteral("url(\":/audio/resources/icons/microphone_test.svg\")");
    for (auto turn : state) {
        QObject dialog;
        benchmark::DoNotOptimize(ostra::utils::recolourIcon(&dialog, value, QStringLiteral("#ffff00")));
    }
}

void digitDecision(benchmark::State &state)
{
    const measure::DigitClips clips = bench::digitClips();
    const measure::MatchedFilter filter(clips);
    const measure::MonoSound capture = bench::digitCapture(clips);
    for (auto turn : state)
        benchmark::DoNotOptimize(filter.recognise(capture));
}

} // namespace

BENCHMARK(configLines)->RangeMultiplier(10)->Range(100, 100'000)->Complexity(benchmark::oNLogN);
BENCHMARK(configLongLine)->RangeMultiplier(10)->Range(1000, 10'000'000)->Complexity(benchmark::oN);
BENCHMARK(captureCallback)->RangeMultiplier(8)->Range(1, 4096);
BENCHMARK(contrastSheet)->RangeMultiplier(4)->Range(25'000, 1'600'000)->Complexity(benchmark::oN);
BENCHMARK(recolouredIcon);
BENCHMARK(digitDecision);

int main(int argumentCount, char **arguments)
{
    const QGuiApplication application(argumentCount, arguments);
    ostra::initIcons();
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
