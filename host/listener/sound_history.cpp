// SPDX-License-Identifier: Apache-2.0
#include "host/listener/sound_history.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr std::int64_t keptFrameCount = std::int64_t{captureRate} * 8;
constexpr std::int64_t slackFrameCount = std::int64_t{captureRate} * 2;
/// A first-order high-pass at 38 Hz: below any voice.
constexpr float highPass = 0.995F;
constexpr float fullScale = 0.999F;
constexpr int clippedFrameCount = 3;

} // namespace

double levelOf(double meanPower) { return meanPower > 0 ? std::max(lowestDbfs, 10 * std::log10(meanPower)) : lowestDbfs; }

float SoundHistory::withoutDirectCurrent(Channel &channel, float sample) const
{
    channel.output = sample - channel.input + highPass * channel.output;
    channel.input = sample;
    return channel.output;
}

void SoundHistory::watchForClipping(Channel &channel, float sample)
{
    channel.fullFrameCount = std::abs(sample) >= fullScale ? channel.fullFrameCount + 1 : 0;
    if (channel.fullFrameCount < clippedFrameCount)
        return;
    // The first frames of a run are known as such only now; another channel may have told them already.
    const bool isNew = channel.fullFrameCount == clippedFrameCount;
    for (std::int64_t frame = frameCount() - (isNew ? clippedFrameCount - 1 : 0); frame <= frameCount(); ++frame) {
        if (clippedFrames_.empty() || clippedFrames_.back() < frame)
            clippedFrames_.push_back(frame);
    }
}

void SoundHistory::append(std::span<const float> interleaved, SteadyTime end)
{
    if (samples_.empty() && !interleaved.empty()) { // a steady offset is no sound, not even at the beginning
        for (std::size_t index = 0; index < captureChannelCount; ++index)
            channels_[index].input = interleaved[index];
    }
    for (std::size_t position = 0; position + captureChannelCount <= interleaved.size(); position += captureChannelCount) {
        float sum = 0;
        for (std::size_t index = 0; index < captureChannelCount; ++index) {
            const float sample = interleaved[position + index];
            watchForClipping(channels_[index], sample);
            sum += withoutDirectCurrent(channels_[index], sample);
        }
        samples_.push_back(sum / captureChannelCount);
        sides_.push_back(channels_[0].output - samples_.back());
    }
    marks_.push_back({frameCount(), end});
    forgetOldest();
}

void SoundHistory::forgetOldest()
{
    if (std::ssize(samples_) < keptFrameCount + slackFrameCount)
        return;
    const std::int64_t surplus = std::ssize(samples_) - keptFrameCount;
    samples_.erase(samples_.begin(), samples_.begin() + surplus);
    sides_.erase(sides_.begin(), sides_.begin() + surplus);
    first_ += surplus;
    while (!marks_.empty() && marks_.front().frame < first_)
        marks_.pop_front();
    while (!clippedFrames_.empty() && clippedFrames_.front() < first_)
        clippedFrames_.pop_front();
}

std::vector<float> SoundHistory::copy(FrameSpan span) const
{
    std::vector<float> result(static_cast<std::size_t>(std::max<std::int64_t>(0, span.count())));
    const std::int64_t from = std::clamp(span.first, first_, frameCount());
    const std::int64_t to = std::clamp(span.end, from, frameCount());
    std::copy(samples_.begin() + (from - first_), samples_.begin() + (to - first_), result.begin() + (from - span.first));
    return result;
}

template <typename Value>
double SoundHistory::levelOfEach(FrameSpan span, Value value) const
{
    const std::int64_t from = std::clamp(span.first, first_, frameCount());
    const std::int64_t to = std::clamp(span.end, from, frameCount());
    if (span.count() <= 0)
        return lowestDbfs;
    double energy = 0;
    for (std::int64_t frame = from; frame < to; ++frame) {
        const double sample = value(static_cast<std::size_t>(frame - first_));
        energy += sample * sample;
    }
    return levelOf(energy / static_cast<double>(span.count()));
}

double SoundHistory::levelDbfs(FrameSpan span) const
{
    return levelOfEach(span, [this](std::size_t index) { return double{samples_[index]}; });
}

double SoundHistory::channelDbfs(FrameSpan span, std::size_t channel) const
{
    const double sign = channel == 0 ? 1 : -1;
    return levelOfEach(span, [this, sign](std::size_t index) { return samples_[index] + sign * sides_[index]; });
}

bool SoundHistory::isClipped(FrameSpan span) const
{
    const auto found = std::lower_bound(clippedFrames_.begin(), clippedFrames_.end(), span.first);
    return found != clippedFrames_.end() && *found < span.end;
}

std::int64_t SoundHistory::countClipped(FrameSpan span) const
{
    const auto first = std::lower_bound(clippedFrames_.begin(), clippedFrames_.end(), span.first);
    return std::lower_bound(first, clippedFrames_.end(), span.end) - first;
}

SteadyTime SoundHistory::timeOf(std::int64_t frame) const
{
    if (marks_.empty())
        return {};
    auto mark = std::lower_bound(marks_.begin(), marks_.end(), frame,
                                 [](const Mark &left, std::int64_t wanted) { return left.frame < wanted; });
    if (mark == marks_.end())
        --mark;
    return mark->time - std::chrono::microseconds((mark->frame - frame) * 1'000'000 / std::int64_t{captureRate});
}

} // namespace host
