// SPDX-License-Identifier: Apache-2.0
#include "autotests/audio/tone.h"

#include <SDL_audio.h>

#include <cmath>
#include <complex>
#include <cstring>
#include <numbers>
#include <vector>

namespace tone {

namespace {

constexpr double frameRate = 44100;
constexpr std::size_t channels = 2;
constexpr std::size_t bytesPerFrame = channels * sizeof(float);
constexpr std::size_t windowFrames = 4410; // 0.1 s
constexpr double quietest = 0.02;          // root mean square; the tone made here has 0.21
constexpr double purest = 0.8;             // share of the window's energy that is the tone

std::vector<double> leftChannel(const ostra::audio::AudioRecording &recording)
{
    std::vector<double> samples(recording.byteCount / bytesPerFrame);
    for (std::size_t frame = 0; frame < samples.size(); ++frame) {
        float sample = 0;
        std::memcpy(&sample, recording.samples.get() + frame * bytesPerFrame, sizeof sample);
        samples[frame] = static_cast<double>(sample);
    }
    return samples;
}

bool holdsTone(const double *window, double frequency)
{
    std::complex<double> sum;
    double energy = 0;
    for (std::size_t frame = 0; frame < windowFrames; ++frame) {
        const double phase = 2 * std::numbers::pi * frequency * static_cast<double>(frame) / frameRate;
        sum += window[frame] * std::polar(1.0, -phase);
        energy += window[frame] * window[frame];
    }
    const double count = static_cast<double>(windowFrames);
    return energy > quietest * quietest * count && 2 * std::norm(sum) / count > purest * energy;
}

} // namespace

std::shared_ptr<ostra::audio::AudioRecording> make(double frequency, std::uint16_t seconds)
{
    auto recording = std::make_shared<ostra::audio::AudioRecording>();
    const auto frameCount = static_cast<std::size_t>(frameRate) * (seconds + 1U);
    recording->byteCount = static_cast<std::uint32_t>(frameCount * bytesPerFrame);
    recording->samples = std::make_unique<std::uint8_t[]>(recording->byteCount);
    for (std::size_t frame = 0; frame < frameCount; ++frame) {
        const double phase = 2 * std::numbers::pi * frequency * static_cast<double>(frame) / frameRate;
        const auto sample = static_cast<float>(0.3 * std::sin(phase));
        const float both[channels]{sample, sample};
        std::memcpy(recording->samples.get() + frame * bytesPerFrame, both, sizeof both);
    }
    recording->seconds = seconds;
    recording->frequency = static_cast<std::uint16_t>(frameRate);
    recording->format = AUDIO_F32LSB;
    recording->channels = channels;
    recording->framesPerCallback = 4096;
    return recording;
}

double heardSeconds(const ostra::audio::AudioRecording &recording, double frequency)
{
    const std::vector<double> samples = leftChannel(recording);
    double windows = 0;
    for (std::size_t at = 0; at + windowFrames <= samples.size(); at += windowFrames)
        windows += holdsTone(samples.data() + at, frequency) ? 1 : 0;
    return windows * static_cast<double>(windowFrames) / frameRate;
}

} // namespace tone
