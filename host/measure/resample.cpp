// SPDX-License-Identifier: Apache-2.0
#include "host/measure/resample.h"

#include "host/measure/dot_product.h"
#include "host/measure/wav_file.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace measure {
namespace {

/// Half the filter's length in periods of the lower of both rates: the Blackman window's transition band is then
/// 5.5 / 40 of that rate wide (1.1 kHz).
constexpr double halfLengthPeriods = 20;

/// Middle of the transition band over the lower rate (3.5 kHz).
constexpr double cutoff = 0.4375;

/// Rates that share few factors with analysisRate would need thousands of filters; the nearest of 1000 is within
/// 63 ns of the true position.
constexpr std::size_t maxPhaseCount = 1000;

double blackman(double position)
{
    const double angle = std::numbers::pi * position;
    return 0.42 + 0.5 * std::cos(angle) + 0.08 * std::cos(2 * angle);
}

double sinc(double x)
{
    const double angle = std::numbers::pi * x;
    return std::abs(angle) < 1e-9 ? 1.0 : std::sin(angle) / angle;
}

/// One low-pass per position of an output frame between two input frames.
class PhaseFilters {
public:
    explicit PhaseFilters(std::uint32_t sampleRate)
        : periodFrames_(static_cast<double>(sampleRate) / std::min(sampleRate, analysisRate)),
          reach_(static_cast<std::int64_t>(std::ceil(halfLengthPeriods * periodFrames_))),
          phaseCount_(std::min<std::size_t>(analysisRate / std::gcd(sampleRate, analysisRate), maxPhaseCount))
    {
        taps_.reserve((phaseCount_ + 1) * tapCount());
        for (std::size_t phase = 0; phase <= phaseCount_; ++phase)
            appendPhase(static_cast<double>(phase) / static_cast<double>(phaseCount_));
    }

    std::int64_t reach() const { return reach_; }
    std::size_t tapCount() const { return static_cast<std::size_t>(2 * reach_ + 1); }

    /// Taps for the input frames from -reach() to reach() around an output frame that lies fraction (0 to 1) after
    /// input frame 0.
    std::span<const float> at(double fraction) const
    {
        const auto phase = static_cast<std::size_t>(std::lround(fraction * static_cast<double>(phaseCount_)));
        return std::span(taps_).subspan(phase * tapCount(), tapCount());
    }

private:
    void appendPhase(double fraction)
    {
        std::vector<double> taps;
        for (std::int64_t frame = -reach_; frame <= reach_; ++frame) {
            const double periods = (static_cast<double>(frame) - fraction) / periodFrames_;
            const double position = std::clamp(periods / halfLengthPeriods, -1.0, 1.0);
            taps.push_back(sinc(2 * cutoff * periods) * blackman(position));
        }
        const double sum = std::accumulate(taps.begin(), taps.end(), 0.0);
        for (const double tap : taps)
            taps_.push_back(static_cast<float>(tap / sum));
    }

    double periodFrames_;
    std::int64_t reach_;
    std::size_t phaseCount_;
    std::vector<float> taps_;
};

} // namespace

std::vector<float> toAnalysisRate(std::span<const float> samples, std::uint32_t sampleRate)
{
    if (sampleRate < minResampleRate || sampleRate > maxSampleRate)
        return {};
    const PhaseFilters filters(sampleRate);
    const auto reach = static_cast<std::size_t>(filters.reach());
    std::vector<float> padded(samples.size() + 2 * reach + 1);
    std::copy(samples.begin(), samples.end(), padded.begin() + filters.reach());

    const std::uint64_t frameCount = (std::uint64_t{samples.size()} * analysisRate + sampleRate - 1) / sampleRate;
    std::vector<float> resampled(static_cast<std::size_t>(frameCount));
    for (std::uint64_t frame = 0; frame < frameCount; ++frame) {
        const std::uint64_t position = frame * sampleRate;
        const double fraction = static_cast<double>(position % analysisRate) / analysisRate;
        const auto window = std::span(padded).subspan(static_cast<std::size_t>(position / analysisRate), filters.tapCount());
        resampled[static_cast<std::size_t>(frame)] = dotProduct(filters.at(fraction), window);
    }
    return resampled;
}

} // namespace measure
