// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace measure {

/// Frames per second at which speech is compared: it holds what tells digits apart and is cheap.
constexpr std::uint32_t analysisRate = 8000;

/// Lowest rate that is taken; the highest is maxSampleRate of wav_file.h.
constexpr std::uint32_t minResampleRate = 1000;

/// Resamples to analysisRate through a linear-phase low-pass without delay: frame m of the result is the sound at
/// m / analysisRate seconds. Flat up to 2.9 kHz, at least 70 dB down from 4.1 kHz on (in proportion for rates below
/// analysisRate). What lies before and after the samples counts as silence.
/// \param samples finite values.
/// \return ceil(count * analysisRate / sampleRate) values; empty when sampleRate is outside its range.
std::vector<float> toAnalysisRate(std::span<const float> samples, std::uint32_t sampleRate);

} // namespace measure
