// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace measure {

/// Lowest and highest third-octave band: centres 100 Hz and 20 kHz, each 10^(1/10) above the one before (IEC 61260-1, base
/// ten).
inline constexpr double lowestBandCentre = 100.0;
inline constexpr int bandCount = 24;

/// Mean power of each band, of which a full-scale square wave has 1 in all, under a Hann window over the whole sound. A band
/// beyond half the sample rate has 0. Empty for a sound of fewer than two frames.
std::vector<double> bandPowers(std::span<const float> sound, std::uint32_t sampleRate);

} // namespace measure
