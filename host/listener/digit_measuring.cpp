// SPDX-License-Identifier: Apache-2.0
#include "host/listener/digit_measuring.h"

#include "host/measure/band_levels.h"
#include "host/measure/clip_fit.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

/// Captured around a digit, so that the fit has room: 10 ms.
constexpr std::int64_t marginFrameCount = captureRate / 100;
constexpr std::size_t stepFrameCount = captureRate * envelopeStepMs / 1000;

std::vector<float> filtered(const measure::MonoSound &clip)
{
    if (clip.sampleRate != captureRate)
        return {};
    std::vector<float> interleaved;
    for (const float sample : clip.samples)
        interleaved.insert(interleaved.end(), captureChannelCount, sample);
    SoundHistory history;
    history.append(interleaved, {});
    return history.copy({0, history.frameCount()});
}

void addEnvelope(std::span<const float> sound, DigitMeasurement &measured)
{
    double peak = 0;
    for (std::size_t first = 0; first < sound.size(); first += stepFrameCount) {
        const auto step = sound.subspan(first, std::min(stepFrameCount, sound.size() - first));
        const auto [low, high] = std::minmax_element(step.begin(), step.end());
        measured.lowest.append(std::clamp(double{*low}, -1.0, 1.0));
        measured.highest.append(std::clamp(double{*high}, -1.0, 1.0));
        peak = std::max({peak, -double{*low}, double{*high}});
    }
    measured.peakDbfs = levelOf(peak * peak);
}

void addFit(std::span<const float> capture, std::span<const float> clip, DigitMeasurement &measured)
{
    const auto fit = measure::fitClip(capture, clip, marginFrameCount);
    if (!fit)
        return;
    constexpr double partsPerMillion = 1e6;
    measured.snrDb = fit->snrDb;
    measured.residualDbfs = levelOf(fit->residualPower);
    if (fit->snrDb > measure::minStretchSnrDb)
        measured.clockErrorPpm = -fit->stretch * partsPerMillion; // a clock that is too fast shortens the clip
}

} // namespace

DigitMeasuring::DigitMeasuring(const measure::DigitClips &clips)
{
    std::transform(clips.begin(), clips.end(), clips_.begin(), filtered);
}

DigitMeasurement DigitMeasuring::measure(const SoundHistory &history, const FoundDigit &found) const
{
    DigitMeasurement measured;
    const std::vector<float> sound = history.copy(found.span);
    addEnvelope(sound, measured);
    for (const double power : measure::bandPowers(sound, captureRate))
        measured.bandLevelsDbfs.append(levelOf(power));
    for (std::size_t channel = 0; channel < captureChannelCount; ++channel)
        measured.channelDbfs.append(history.channelDbfs(found.span, channel));
    measured.clippedFrameCount = history.countClipped(found.span);
    const FrameSpan wide{found.span.first - marginFrameCount, found.span.end + marginFrameCount};
    addFit(history.copy(wide), clips_[static_cast<std::size_t>(found.digit)], measured);
    return measured;
}

} // namespace host
