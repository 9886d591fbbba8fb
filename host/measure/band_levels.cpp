// SPDX-License-Identifier: Apache-2.0
#include "host/measure/band_levels.h"

#include "host/measure/real_fft.h"

#include <cmath>
#include <cstddef>
#include <numbers>

namespace measure {
namespace {

/// Square of the Hann window's effective value.
constexpr double windowPower = 0.375;

int bandOf(double frequency)
{
    return frequency <= 0 ? -1 : static_cast<int>(std::lround(10 * std::log10(frequency / lowestBandCentre)));
}

std::vector<float> windowed(std::span<const float> sound)
{
    std::vector<float> values(sound.begin(), sound.end());
    values.resize(sound.size() + sound.size() % 2);
    for (std::size_t index = 0; index < sound.size(); ++index) {
        const double turn = 2 * std::numbers::pi * (static_cast<double>(index) + 0.5) / static_cast<double>(sound.size());
        values[index] *= static_cast<float>(0.5 - 0.5 * std::cos(turn));
    }
    return values;
}

} // namespace

std::vector<double> bandPowers(std::span<const float> sound, std::uint32_t sampleRate)
{
    if (sound.size() < 2)
        return {};
    const std::vector<float> values = windowed(sound);
    RealFft transform(values.size());
    Spectrum spectrum(transform.binCount());
    transform.forward(values, spectrum);
    std::vector<double> powers(bandCount, 0.0);
    const auto size = static_cast<double>(values.size());
    for (std::size_t bin = 1; bin < spectrum.size(); ++bin) {
        const int band = bandOf(static_cast<double>(bin) * sampleRate / size);
        const double real = spectrum[bin].r;
        const double imaginary = spectrum[bin].i;
        if (band >= 0 && band < bandCount)
            powers[static_cast<std::size_t>(band)] += 2 * (real * real + imaginary * imaginary) / (size * size * windowPower);
    }
    return powers;
}

} // namespace measure
