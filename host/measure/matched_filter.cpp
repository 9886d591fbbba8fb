// SPDX-License-Identifier: Apache-2.0
#include "host/measure/matched_filter.h"

#include "host/measure/fine_peak.h"
#include "host/measure/resample.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <functional>
#include <numeric>

namespace measure {
namespace {

using Samples = std::span<const float>;

/// The correlation is looked at twice per frame: at whole frames alone, one of 2.4 kHz can lose 40 % of its height.
constexpr std::size_t stepsPerFrame = 2;

double energyOf(Samples samples)
{
    return std::accumulate(samples.begin(), samples.end(), 0.0,
                           [](double sum, float sample) { return sum + double{sample} * double{sample}; });
}

/// Copies the capture from first on into the block; what lies outside the capture is silence.
void copyBlock(Samples capture, std::int64_t first, std::span<float> block)
{
    std::fill(block.begin(), block.end(), 0.0F);
    const auto size = std::ssize(capture);
    const std::int64_t from = std::clamp<std::int64_t>(first, 0, size);
    const std::int64_t to = std::clamp<std::int64_t>(first + std::ssize(block), 0, size);
    std::copy(capture.begin() + from, capture.begin() + to, block.begin() + (from - first));
}

/// The product goes into the lowest bins of the longer spectrum; the others stay 0.
void multiply(const Spectrum &left, const Spectrum &right, Spectrum &product)
{
    for (std::size_t bin = 0; bin < left.size(); ++bin) {
        product[bin].r = left[bin].r * right[bin].r - left[bin].i * right[bin].i;
        product[bin].i = left[bin].r * right[bin].i + left[bin].i * right[bin].r;
    }
}

using Scores = std::array<double, digitCount>;

double highestBeside(const Scores &scores, Scores::const_iterator best)
{
    const auto highest = [](Scores::const_iterator from, Scores::const_iterator to) {
        return std::accumulate(from, to, 0.0, [](double left, double right) { return std::max(left, right); });
    };
    return std::max(highest(scores.begin(), best), highest(best + 1, scores.end()));
}

} // namespace

/// Energy of any stretch of the capture in constant time.
class MatchedFilter::EnergyWindow {
public:
    EnergyWindow(Samples capture, std::size_t longestFrameCount) : sums_{0.0}
    {
        sums_.reserve(capture.size() + 1);
        for (const float sample : capture)
            sums_.push_back(sums_.back() + double{sample} * double{sample});
        const auto window = static_cast<std::int64_t>(longestFrameCount);
        for (std::int64_t lag = 1 - window; lag < std::ssize(capture); ++lag)
            loudest_ = std::max(loudest_, at(lag, longestFrameCount));
    }

    double at(std::int64_t lag, std::size_t frameCount) const
    {
        const std::int64_t size = std::ssize(sums_) - 1;
        const std::int64_t from = std::clamp<std::int64_t>(lag, 0, size);
        const std::int64_t to = std::clamp<std::int64_t>(lag + static_cast<std::int64_t>(frameCount), 0, size);
        return sums_[static_cast<std::size_t>(to)] - sums_[static_cast<std::size_t>(from)];
    }

    /// Below it the rounding of the transform would count as likeness.
    double floor(std::size_t frameCount) const
    {
        constexpr double quietestPower = 2.5e-10;
        constexpr double rangePower = 1e-8;
        return std::max(quietestPower * static_cast<double>(frameCount), rangePower * loudest_);
    }

private:
    std::vector<double> sums_;
    double loudest_ = 0;
};

MatchedFilter::MatchedFilter(const DigitClips &clips)
{
    for (std::size_t digit = 0; digit < digitCount; ++digit) {
        Template &entry = templates_[digit];
        entry.samples = toAnalysisRate(clips[digit].samples, clips[digit].sampleRate);
        entry.energy = energyOf(entry.samples);
        longestFrameCount_ = std::max(longestFrameCount_, entry.samples.size());
    }
    // A block of two clip lengths gives one clip length of lags; a power of two is the fastest.
    blockFrameCount_ = std::bit_ceil(2 * longestFrameCount_);
    RealFft fft(blockFrameCount_);
    std::vector<float> block(blockFrameCount_);
    for (Template &entry : templates_) {
        copyBlock(entry.samples, 0, block);
        fft.forward(block, entry.spectrum);
        for (kiss_fft_cpx &bin : entry.spectrum)
            bin.i = -bin.i;
    }
}

Recognition MatchedFilter::recognise(const MonoSound &capture) const
{
    const std::vector<float> samples = toAnalysisRate(capture.samples, capture.sampleRate);
    const std::array<Match, digitCount> matches = findMatches(samples);
    Recognition recognition;
    std::transform(matches.begin(), matches.end(), recognition.scores.begin(), std::mem_fn(&Match::score));
    const auto best = std::max_element(recognition.scores.begin(), recognition.scores.end());
    if (*best <= 0)
        return recognition;
    const auto digit = best - recognition.scores.begin();
    const Match &match = matches[static_cast<std::size_t>(digit)];
    recognition.digit = static_cast<int>(digit);
    recognition.score = match.score;
    recognition.margin = match.score - highestBeside(recognition.scores, best);
    recognition.lag = std::chrono::duration<double>(match.lag / analysisRate);
    recognition.lagFrames = std::llround(recognition.lag.count() * capture.sampleRate);
    recognition.inverted = match.inverted;
    recognition.accepted = recognition.score > minAcceptedScore && recognition.margin > minAcceptedMargin;
    return recognition;
}

std::array<MatchedFilter::Match, digitCount> MatchedFilter::findMatches(Samples capture) const
{
    const EnergyWindow energies(capture, longestFrameCount_);
    const std::array<Peak, digitCount> peaks = findPeaks(capture, energies);
    std::array<Match, digitCount> matches;
    for (std::size_t digit = 0; digit < digitCount; ++digit) {
        if (peaks[digit].power <= 0)
            continue;
        const Template &entry = templates_[digit];
        const FinePeak peak = findFinePeak(capture, entry.samples, peaks[digit].lag);
        const double energy = energies.at(std::llround(peak.lag), entry.samples.size());
        if (energy <= 0)
            continue;
        const double likeness = std::abs(peak.correlation) / std::sqrt(energy * entry.energy);
        matches[digit] = {.score = std::min(1.0, likeness), .lag = peak.lag, .inverted = peak.correlation < 0};
    }
    return matches;
}

std::array<MatchedFilter::Peak, digitCount> MatchedFilter::findPeaks(Samples capture, const EnergyWindow &energies) const
{
    std::array<Peak, digitCount> peaks;
    RealFft forward(blockFrameCount_);
    RealFft inverse(stepsPerFrame * blockFrameCount_);
    std::vector<float> block(forward.size());
    std::vector<float> correlation(inverse.size());
    Spectrum captureSpectrum;
    Spectrum product(inverse.binCount());
    const auto lagsPerBlock = static_cast<std::int64_t>(blockFrameCount_ - longestFrameCount_ + 1);
    const std::int64_t firstLag = 1 - static_cast<std::int64_t>(longestFrameCount_);
    for (std::int64_t lag = firstLag; lag < std::ssize(capture); lag += lagsPerBlock) {
        copyBlock(capture, lag, block);
        forward.forward(block, captureSpectrum);
        const auto lagCount = static_cast<std::size_t>(std::min(lagsPerBlock, std::ssize(capture) - lag));
        for (std::size_t digit = 0; digit < digitCount; ++digit) {
            if (templates_[digit].energy <= 0)
                continue;
            multiply(captureSpectrum, templates_[digit].spectrum, product);
            inverse.inverse(product, correlation);
            searchBlock(std::span(correlation).first(stepsPerFrame * lagCount), lag, energies, templates_[digit], peaks[digit]);
        }
    }
    return peaks;
}

void MatchedFilter::searchBlock(Samples correlation, std::int64_t firstLag, const EnergyWindow &energies, const Template &digit,
                                Peak &peak) const
{
    const double floor = energies.floor(digit.samples.size());
    const double scale = 1.0 / static_cast<double>(blockFrameCount_);
    for (std::size_t step = 0; step < correlation.size(); ++step) {
        const std::int64_t lag = firstLag + static_cast<std::int64_t>(step / stepsPerFrame);
        const double energy = energies.at(lag, digit.samples.size());
        const double value = double{correlation[step]} * scale;
        if (energy > floor && value * value > peak.power * energy * digit.energy)
            peak = {.power = value * value / (energy * digit.energy), .lag = lag};
    }
}

} // namespace measure
