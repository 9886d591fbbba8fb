// SPDX-License-Identifier: Apache-2.0
#include "host/listener/rate_converter.h"

#include "host/listener/block_ring.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace host {

namespace {

/// Zero crossings on each side.
constexpr double crossingCount = 32;
/// Of the narrower band; above it the window has its slope.
constexpr double passedShare = 0.95;

double sinc(double value) { return value == 0.0 ? 1.0 : std::sin(std::numbers::pi * value) / (std::numbers::pi * value); }

double blackman(double value)
{
    const double angle = std::numbers::pi * std::clamp(value, -1.0, 1.0);
    return 0.42 + 0.5 * std::cos(angle) + 0.08 * std::cos(2 * angle);
}

// Every phase lets direct current through unchanged.
void appendPhase(double delay, std::size_t halfWidth, double cutoff, std::vector<float> &taps)
{
    std::vector<double> phase(2 * halfWidth);
    const auto half = static_cast<double>(halfWidth);
    for (std::size_t tap = 0; tap < phase.size(); ++tap) {
        const double distance = static_cast<double>(tap) + 1 - half - delay;
        phase[tap] = sinc(cutoff * distance) * blackman(distance / half);
    }
    const double sum = std::accumulate(phase.begin(), phase.end(), 0.0);
    for (const double value : phase)
        taps.push_back(static_cast<float>(value / sum));
}

} // namespace

RateConverter::RateConverter(std::uint32_t rate)
    : step_(rate / std::gcd(rate, captureRate)), phaseCount_(captureRate / std::gcd(rate, captureRate))
{
    if (rate == captureRate)
        return;
    const double band = std::min(1.0, double{captureRate} / rate);
    halfWidth_ = static_cast<std::size_t>(std::ceil(crossingCount / band));
    for (std::size_t phase = 0; phase < phaseCount_; ++phase)
        appendPhase(static_cast<double>(phase) / static_cast<double>(phaseCount_), halfWidth_, passedShare * band, taps_);
    waiting_.resize((halfWidth_ - 1) * captureChannelCount);
    position_ = (halfWidth_ - 1) * phaseCount_;
}

void RateConverter::appendFrame()
{
    const std::size_t first = position_ / phaseCount_ + 1 - halfWidth_;
    const auto taps = std::span(taps_).subspan(position_ % phaseCount_ * 2 * halfWidth_, 2 * halfWidth_);
    const auto frames = std::span(waiting_).subspan(first * captureChannelCount, taps.size() * captureChannelCount);
    float left = 0;
    float right = 0;
    for (std::size_t tap = 0; tap < taps.size(); ++tap) {
        left += taps[tap] * frames[2 * tap];
        right += taps[tap] * frames[2 * tap + 1];
    }
    ready_.push_back(left);
    ready_.push_back(right);
    position_ += step_;
}

void RateConverter::forgetUsed()
{
    const std::size_t used = std::min(position_ / phaseCount_ + 1 - halfWidth_, waiting_.size() / captureChannelCount);
    waiting_.erase(waiting_.begin(), waiting_.begin() + static_cast<std::ptrdiff_t>(used * captureChannelCount));
    position_ -= used * phaseCount_;
}

std::span<const float> RateConverter::convert(std::span<const float> stereo)
{
    if (taps_.empty())
        return stereo;
    ready_.clear();
    waiting_.insert(waiting_.end(), stereo.begin(), stereo.end());
    while (position_ / phaseCount_ + halfWidth_ < waiting_.size() / captureChannelCount)
        appendFrame();
    forgetUsed();
    return ready_;
}

} // namespace host
