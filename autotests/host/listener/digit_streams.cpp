// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/listener/digit_streams.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <random>

namespace digit_streams {

namespace {

std::size_t framesIn(double seconds) { return static_cast<std::size_t>(std::llround(seconds * host::captureRate)); }

double meanPower(const measure::DigitClips &clips)
{
    double energy = 0;
    std::size_t frameCount = 0;
    for (const measure::MonoSound &clip : clips) {
        for (const float sample : clip.samples)
            energy += double{sample} * double{sample};
        frameCount += clip.samples.size();
    }
    return energy / static_cast<double>(std::max<std::size_t>(1, frameCount));
}

} // namespace

measure::DigitClips clipsOf(const char *language)
{
    return measure::readDigitClips(std::filesystem::path(AUDIO_CLIPS_DIR), language).value_or(measure::DigitClips{});
}

Stream silence(double seconds) { return Stream(framesIn(seconds), 0.0F); }

void append(Stream &stream, const Stream &more) { stream.insert(stream.end(), more.begin(), more.end()); }

Stream spoken(const measure::DigitClips &clips, const std::vector<int> &digits, double gap, double lead)
{
    Stream stream = silence(lead);
    for (const int digit : digits) {
        append(stream, clips[static_cast<std::size_t>(digit)].samples);
        append(stream, silence(gap));
    }
    return stream;
}

void addNoise(Stream &stream, const measure::DigitClips &clips, double decibels)
{
    constexpr double bandShare = 4000.0 * 2 / host::captureRate;
    const double power = meanPower(clips) * std::pow(10.0, decibels / 10) / bandShare;
    std::mt19937 engine(1);
    std::normal_distribution<float> noise(0.0F, static_cast<float>(std::sqrt(power)));
    for (float &sample : stream)
        sample += noise(engine);
}

std::vector<host::HeardSound> hear(const measure::DigitClips &clips, const Stream &stream, host::SteadyTime start)
{
    std::vector<host::HeardSound> sounds;
    host::StreamListener listener(clips, [&sounds](const host::HeardSound &sound) { sounds.push_back(sound); });
    constexpr std::size_t blockFrameCount = host::SoundBlock::maxFrameCount;
    for (std::size_t first = 0; first < stream.size(); first += blockFrameCount) {
        const std::size_t end = std::min(first + blockFrameCount, stream.size());
        std::vector<float> block;
        for (std::size_t frame = first; frame < end; ++frame)
            block.insert(block.end(), 2, stream[frame]);
        const auto microseconds = static_cast<std::int64_t>(end) * 1'000'000 / std::int64_t{host::captureRate};
        listener.feed(block, start + std::chrono::microseconds(microseconds));
    }
    listener.finish();
    return sounds;
}

std::vector<int> digitsOf(const std::vector<host::HeardSound> &sounds)
{
    std::vector<int> digits;
    std::transform(sounds.begin(), sounds.end(), std::back_inserter(digits),
                   [](const host::HeardSound &sound) { return sound.digit.value_or(-1); });
    return digits;
}

} // namespace digit_streams
