// SPDX-License-Identifier: Apache-2.0
#include "host/measure/tone_fit.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>

namespace measure {
namespace {

constexpr std::size_t unknownCount = 4; ///< cosine, sine, offset, step of the frequency
constexpr int turnLimit = 12;
constexpr double leastPeriods = 3;
constexpr double lowestRatioDb = -160;

using Row = std::array<double, unknownCount + 1>;
using Equations = std::array<Row, unknownCount>;

/// Gauss with pivoting; false for a singular system.
bool solve(Equations &rows, std::size_t count)
{
    for (std::size_t column = 0; column < count; ++column) {
        std::size_t pivot = column;
        for (std::size_t row = column + 1; row < count; ++row)
            pivot = std::abs(rows[row][column]) > std::abs(rows[pivot][column]) ? row : pivot;
        if (rows[pivot][column] == 0)
            return false;
        std::swap(rows[pivot], rows[column]);
        for (std::size_t row = 0; row < count; ++row) {
            const double factor = row == column ? 0 : rows[row][column] / rows[column][column];
            for (std::size_t index = column; index <= unknownCount; ++index)
                rows[row][index] -= factor * rows[column][index];
        }
    }
    for (std::size_t row = 0; row < count; ++row)
        rows[row][unknownCount] /= rows[row][row];
    return true;
}

struct Tone {
    double step = 0; ///< radians a frame
    double cosine = 0;
    double sine = 0;
    double offset = 0;

    double at(double frame) const { return cosine * std::cos(step * frame) + sine * std::sin(step * frame) + offset; }
};

/// One turn of the fit around `tone`: with three unknowns its frequency stays.
bool refine(std::span<const float> capture, Tone &tone, std::size_t count)
{
    Equations rows{};
    for (std::size_t index = 0; index < capture.size(); ++index) {
        const auto frame = static_cast<double>(index);
        const double cosine = std::cos(tone.step * frame);
        const double sine = std::sin(tone.step * frame);
        const Row terms{cosine, sine, 1, frame * (tone.sine * cosine - tone.cosine * sine), double{capture[index]}};
        for (std::size_t row = 0; row < count; ++row) {
            for (std::size_t column = 0; column <= unknownCount; ++column)
                rows[row][column] += terms[row] * terms[column];
        }
    }
    if (!solve(rows, count))
        return false;
    tone.cosine = rows[0][unknownCount];
    tone.sine = rows[1][unknownCount];
    tone.offset = rows[2][unknownCount];
    tone.step += count == unknownCount ? rows[3][unknownCount] : 0;
    return true;
}

double ratioDb(std::span<const float> capture, const Tone &tone)
{
    double rest = 0;
    double all = 0;
    for (std::size_t index = 0; index < capture.size(); ++index) {
        const double sample = double{capture[index]};
        const double left = sample - tone.at(static_cast<double>(index));
        rest += left * left;
        all += (sample - tone.offset) * (sample - tone.offset);
    }
    return rest > 0 ? std::max(lowestRatioDb, 10 * std::log10(rest / all)) : lowestRatioDb;
}

} // namespace

std::optional<ToneFit> fitTone(std::span<const float> capture, std::uint32_t sampleRate, double frequency)
{
    const double rate = sampleRate;
    const auto frameCount = static_cast<double>(capture.size());
    if (rate <= 0 || frequency <= 0 || frequency >= rate / 2 || frequency * frameCount / rate < leastPeriods)
        return std::nullopt;
    Tone tone;
    tone.step = 2 * std::numbers::pi * frequency / rate;
    if (!refine(capture, tone, unknownCount - 1))
        return std::nullopt;
    for (int turn = 0; turn < turnLimit && (tone.cosine != 0 || tone.sine != 0); ++turn) {
        if (!refine(capture, tone, unknownCount))
            return std::nullopt;
    }
    refine(capture, tone, unknownCount - 1); // amplitudes at the final frequency
    const double amplitude = std::hypot(tone.cosine, tone.sine);
    if (amplitude <= 0)
        return std::nullopt;
    return ToneFit{tone.step * rate / (2 * std::numbers::pi), amplitude, ratioDb(capture, tone)};
}

} // namespace measure
