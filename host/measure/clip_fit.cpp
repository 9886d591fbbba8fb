// SPDX-License-Identifier: Apache-2.0
#include "host/measure/clip_fit.h"

#include "host/measure/fraction_reader.h"

#include <algorithm>
#include <cmath>

namespace measure {
namespace {

using Samples = std::span<const float>;

constexpr std::int64_t searchReach = 96;
constexpr int turnLimit = 8;
constexpr double enoughFrames = 1e-5;
constexpr double bestSnrDb = 120.0;

/// Frames of the clip, from `first` up to, without, `end`.
struct Part {
    std::int64_t first = 0;
    std::int64_t end = 0;
};

double at(Samples samples, std::int64_t index)
{
    return index < 0 || index >= std::ssize(samples) ? 0.0 : double{samples[static_cast<std::size_t>(index)]};
}

/// Where the clip is not silent: above a hundredth of its peak.
Part soundOf(Samples clip)
{
    float peak = 0;
    for (const float sample : clip)
        peak = std::max(peak, std::abs(sample));
    const auto isLoud = [peak](float sample) { return std::abs(sample) > peak / 100; };
    const auto first = std::find_if(clip.begin(), clip.end(), isLoud);
    const auto last = std::find_if(clip.rbegin(), clip.rend(), isLoud);
    return peak <= 0 ? Part{} : Part{first - clip.begin(), clip.rend() - last};
}

double correlationAt(Samples capture, Samples clip, Part part, std::int64_t delay)
{
    double sum = 0;
    for (std::int64_t index = part.first; index < part.end; ++index)
        sum += at(clip, index) * at(capture, index + delay);
    return sum;
}

std::int64_t bestWholeDelay(Samples capture, Samples clip, Part part, std::int64_t delay, std::int64_t reach)
{
    std::int64_t best = delay;
    double highest = 0;
    for (std::int64_t candidate = delay - reach; candidate <= delay + reach; ++candidate) {
        const double value = std::abs(correlationAt(capture, clip, part, candidate));
        if (value > highest) {
            highest = value;
            best = candidate;
        }
    }
    return best;
}

/// Sums over the frames of the capture that a part of the clip covers.
struct Sums {
    double clip = 0;  ///< squares of the clip
    double slope = 0; ///< squares of its slope
    double mixed = 0; ///< clip times slope
    double captureClip = 0;
    double captureSlope = 0;
    double capture = 0;
    double place = 0; ///< squares of the slope times their frame of the clip
};

/// Part of a clip that is laid into a capture and shifted.
class Placement {
public:
    Placement(Samples capture, Samples clip, Part part, double stretch)
        : capture_(capture), clip_(clip), part_(part), stretch_(stretch)
    {}

    Sums sums(double delay) const
    {
        Sums sums;
        const auto first = static_cast<std::int64_t>(std::ceil(delay + static_cast<double>(part_.first) * (1 + stretch_)));
        const auto end = static_cast<std::int64_t>(std::floor(delay + static_cast<double>(part_.end) * (1 + stretch_)));
        for (std::int64_t frame = first; frame < end; ++frame)
            add(sums, frame, (static_cast<double>(frame) - delay) / (1 + stretch_));
        return sums;
    }

    /// The delay of the smallest residual, by Gauss and Newton.
    double refine(double delay) const
    {
        for (int turn = 0; turn < turnLimit; ++turn) {
            const Sums now = sums(delay);
            const double determinant = now.clip * now.slope - now.mixed * now.mixed;
            if (determinant <= 0)
                return delay;
            const double gain = (now.captureClip * now.slope - now.captureSlope * now.mixed) / determinant;
            const double turned = (now.captureSlope * now.clip - now.captureClip * now.mixed) / determinant;
            if (gain == 0)
                return delay;
            const double step = std::clamp(-turned / gain, -1.0, 1.0);
            delay += step;
            if (std::abs(step) < enoughFrames)
                return delay;
        }
        return delay;
    }

private:
    void add(Sums &sums, std::int64_t frame, double place) const
    {
        const double value = reader_.read(clip_, place);
        const double slope = reader_.read(clip_, place + 0.5) - reader_.read(clip_, place - 0.5);
        const double heard = at(capture_, frame);
        sums.clip += value * value;
        sums.slope += slope * slope;
        sums.mixed += value * slope;
        sums.captureClip += heard * value;
        sums.captureSlope += heard * slope;
        sums.capture += heard * heard;
        sums.place += slope * slope * place;
    }

    Samples capture_;
    Samples clip_;
    Part part_;
    double stretch_;
    FractionReader reader_;
};

double snrOf(double signal, double residual)
{
    if (residual <= signal * 1e-12)
        return bestSnrDb;
    return signal <= 0 ? -bestSnrDb : 10 * std::log10(signal / residual);
}

std::optional<ClipFit> fitWhole(Samples capture, Samples clip, double delay, double stretch)
{
    const Placement placement(capture, clip, {0, std::ssize(clip)}, stretch);
    const double fine = placement.refine(delay);
    const Sums sums = placement.sums(fine);
    if (sums.clip <= 0 || sums.capture <= 0)
        return std::nullopt;
    const double gain = sums.captureClip / sums.clip;
    const double signal = gain * gain * sums.clip;
    const double residual = std::max(0.0, sums.capture - gain * sums.captureClip);
    return ClipFit{gain, fine, stretch, snrOf(signal, residual), residual / static_cast<double>(clip.size())};
}

/// Delay of a part, and the frame of the clip that it holds for.
struct PartDelay {
    double delay = 0;
    double place = 0;
};

PartDelay delayOf(Samples capture, Samples clip, Part part, std::int64_t delay)
{
    constexpr std::int64_t reach = 64; // a part lies up to `maxStretch` of its distance aside
    const std::int64_t whole = bestWholeDelay(capture, clip, part, delay, reach);
    const Placement placement(capture, clip, part, 0);
    const double fine = placement.refine(static_cast<double>(whole));
    const Sums sums = placement.sums(fine);
    return {fine, sums.slope > 0 ? sums.place / sums.slope : static_cast<double>(part.first)};
}

double stretchOf(Samples capture, Samples clip, Part sound, std::int64_t delay)
{
    const std::int64_t third = (sound.end - sound.first) / 3;
    const PartDelay first = delayOf(capture, clip, {sound.first, sound.first + third}, delay);
    const PartDelay last = delayOf(capture, clip, {sound.end - third, sound.end}, delay);
    const double distance = last.place - first.place;
    return distance <= 0 ? 0 : (last.delay - first.delay) / distance;
}

} // namespace

std::optional<ClipFit> fitClip(Samples capture, Samples clip, std::int64_t delay)
{
    const Part sound = soundOf(clip);
    if (sound.end <= sound.first)
        return std::nullopt;
    const std::int64_t whole = bestWholeDelay(capture, clip, sound, delay, searchReach);
    const auto plain = fitWhole(capture, clip, static_cast<double>(whole), 0);
    const double stretch = stretchOf(capture, clip, sound, whole);
    if (!plain || std::abs(stretch) > maxStretch)
        return plain;
    const double middle = static_cast<double>(sound.first + sound.end) / 2;
    const auto stretched = fitWhole(capture, clip, static_cast<double>(whole) - middle * stretch, stretch);
    return stretched && stretched->snrDb > plain->snrDb ? stretched : plain;
}

} // namespace measure
