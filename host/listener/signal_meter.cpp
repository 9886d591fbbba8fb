// SPDX-License-Identifier: Apache-2.0
#include "host/listener/signal_meter.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace host {

namespace {

constexpr std::size_t readingFrameCount = captureRate / 10;
constexpr std::size_t waveFrameCount = readingFrameCount / MeterReading::waveCount;

double powerOf(double energy) { return energy / static_cast<double>(readingFrameCount); }

} // namespace

SignalMeter::SignalMeter(Sink sink) : sink_(std::move(sink)) {}

void SignalMeter::feed(std::span<const float> interleaved, SteadyTime end)
{
    for (std::size_t position = 0; position + captureChannelCount <= interleaved.size(); position += captureChannelCount) {
        add(interleaved[position], interleaved[position + 1]);
        if (frameCount_ < readingFrameCount)
            continue;
        const std::size_t later = (interleaved.size() - position) / captureChannelCount - 1;
        tell(end - std::chrono::microseconds(later * 1'000'000 / captureRate));
    }
}

void SignalMeter::add(float left, float right)
{
    MeterReading::Extremes &extremes = wave_[frameCount_ / waveFrameCount];
    const bool isFirst = frameCount_ % waveFrameCount == 0;
    extremes.lowest = std::min({left, right, isFirst ? left : extremes.lowest});
    extremes.highest = std::max({left, right, isFirst ? left : extremes.highest});
    peak_ = std::max({peak_, std::abs(left), std::abs(right)});
    energies_[0] += double{left} * double{left};
    energies_[1] += double{right} * double{right};
    const double difference = double{left} - double{right};
    differenceEnergy_ += difference * difference;
    ++frameCount_;
}

void SignalMeter::tell(SteadyTime end)
{
    MeterReading reading;
    reading.end = end;
    reading.peakDbfs = levelOf(double{peak_} * double{peak_});
    reading.rmsDbfs = levelOf(powerOf(energies_[0] + energies_[1]) / 2);
    reading.channelDbfs = {levelOf(powerOf(energies_[0])), levelOf(powerOf(energies_[1]))};
    reading.differenceDbfs = levelOf(powerOf(differenceEnergy_));
    reading.wave = wave_;
    frameCount_ = 0;
    peak_ = 0;
    energies_ = {};
    differenceEnergy_ = 0;
    sink_(reading);
}

} // namespace host
