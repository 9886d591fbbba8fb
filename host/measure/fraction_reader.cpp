// SPDX-License-Identifier: Apache-2.0
#include "host/measure/fraction_reader.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numbers>

namespace measure {
namespace {

constexpr int reach = 24; // frames to each side
constexpr int tapCount = 2 * reach;
constexpr int stepCount = 1024;

double kernel(double distance)
{
    const double angle = std::numbers::pi * distance;
    const double sinc = std::abs(angle) < 1e-9 ? 1.0 : std::sin(angle) / angle;
    const double turn = std::clamp(angle / reach, -std::numbers::pi, std::numbers::pi);
    return sinc * (0.42 + 0.5 * std::cos(turn) + 0.08 * std::cos(2 * turn));
}

/// One row of taps for each fraction, one more for the step after the last.
std::vector<float> makeTable()
{
    std::vector<float> table;
    table.reserve(static_cast<std::size_t>((stepCount + 1) * tapCount));
    for (int step = 0; step <= stepCount; ++step) {
        for (int tap = 0; tap < tapCount; ++tap)
            table.push_back(static_cast<float>(kernel(static_cast<double>(step) / stepCount - (tap - reach + 1))));
    }
    return table;
}

const std::vector<float> &sharedTable()
{
    static const std::vector<float> table = makeTable();
    return table;
}

} // namespace

FractionReader::FractionReader() : table_(sharedTable()) {}

double FractionReader::read(std::span<const float> samples, double position) const
{
    const double whole = std::floor(position);
    const double steps = (position - whole) * stepCount;
    const auto row = static_cast<std::size_t>(steps);
    const auto share = static_cast<float>(steps - std::floor(steps));
    const float *const lower = table_.data() + row * tapCount;
    const float *const upper = lower + tapCount;
    const auto first = static_cast<std::int64_t>(whole) - reach + 1;
    const std::int64_t from = std::max<std::int64_t>(0, -first);
    const std::int64_t to = std::min<std::int64_t>(tapCount, std::ssize(samples) - first);
    float low = 0;
    float high = 0;
    for (std::int64_t tap = from; tap < to; ++tap) {
        const float sample = samples[static_cast<std::size_t>(first + tap)];
        low += sample * lower[tap];
        high += sample * upper[tap];
    }
    return double{low} + double{share} * (double{high} - double{low});
}

} // namespace measure
