// SPDX-License-Identifier: Apache-2.0
#include "host/measure/fine_peak.h"

#include "host/measure/dot_product.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <numeric>

namespace measure {
namespace {

using Samples = std::span<const float>;

/// Frames to both sides of the given lag that are searched, and of every position that its interpolation uses.
constexpr int searchReach = 4;
constexpr int kernelReach = 16;
constexpr int stepsPerFrame = 16;

double correlationAt(Samples capture, Samples clip, std::int64_t lag)
{
    const std::int64_t from = std::max<std::int64_t>(0, -lag);
    const std::int64_t to = std::min<std::int64_t>(std::ssize(clip), std::ssize(capture) - lag);
    if (to <= from)
        return 0;
    const auto count = static_cast<std::size_t>(to - from);
    return double{dotProduct(clip.subspan(static_cast<std::size_t>(from), count),
                             capture.subspan(static_cast<std::size_t>(lag + from), count))};
}

/// A sinc under a Hann window.
double kernel(double distance)
{
    const double angle = std::numbers::pi * distance;
    if (std::abs(angle) < 1e-9)
        return 1;
    return std::sin(angle) / angle * (0.5 + 0.5 * std::cos(angle / (kernelReach + 1)));
}

/// The kernel around a position between two frames. There are as many of them as steps in a frame, for every correlation the
/// same, and each takes a sine and a cosine a tap.
class Kernels {
public:
    using Taps = std::array<double, 2 * kernelReach + 1>;

    /// Taps for the frames from -kernelReach to kernelReach around the frame that is nearest to a position, which lies
    /// `stepsBehind` steps behind the position: from -half to half.
    const Taps &at(int stepsBehind) const { return taps_[static_cast<std::size_t>(stepsBehind + half)]; }

    static const Kernels &all()
    {
        static const Kernels kernels;
        return kernels;
    }

private:
    static constexpr int half = stepsPerFrame / 2;

    Kernels()
    {
        for (int steps = -half; steps <= half; ++steps) {
            Taps &taps = taps_[static_cast<std::size_t>(steps + half)];
            for (int frame = -kernelReach; frame <= kernelReach; ++frame)
                taps[static_cast<std::size_t>(frame + kernelReach)] =
                    kernel(frame + static_cast<double>(steps) / stepsPerFrame);
        }
    }

    std::array<Taps, stepsPerFrame + 1> taps_{};
};

/// The correlation around a lag, also between frames.
class LocalCorrelation {
public:
    LocalCorrelation(Samples capture, Samples clip, std::int64_t lag)
    {
        for (std::size_t index = 0; index < values_.size(); ++index)
            values_[index] = correlationAt(capture, clip, lag + static_cast<std::int64_t>(index) - reach);
    }

    /// \param step position in 1/stepsPerFrame frames from the lag, up to one step beyond searchReach.
    double at(int step) const
    {
        const int nearest = static_cast<int>(std::lround(static_cast<double>(step) / stepsPerFrame));
        const Kernels::Taps &taps = Kernels::all().at(nearest * stepsPerFrame - step);
        const auto first = values_.begin() + (nearest - kernelReach + reach);
        return std::inner_product(taps.begin(), taps.end(), first, 0.0);
    }

private:
    static constexpr int reach = searchReach + kernelReach;

    std::array<double, 2 * reach + 1> values_{};
};

} // namespace

FinePeak findFinePeak(Samples capture, Samples clip, std::int64_t lag)
{
    const LocalCorrelation correlation(capture, clip, lag);
    int best = 0;
    double value = correlation.at(0);
    for (int step = -searchReach * stepsPerFrame; step <= searchReach * stepsPerFrame; ++step) {
        const double candidate = correlation.at(step);
        if (std::abs(candidate) > std::abs(value)) {
            best = step;
            value = candidate;
        }
    }
    // The vertex of the parabola through the highest step and its neighbours.
    const double before = correlation.at(best - 1);
    const double after = correlation.at(best + 1);
    const double curvature = before - 2 * value + after;
    const double vertex = curvature == 0 ? 0 : std::clamp(0.5 * (before - after) / curvature, -0.5, 0.5);
    return {.lag = static_cast<double>(lag) + (best + vertex) / stepsPerFrame, .correlation = value};
}

} // namespace measure
