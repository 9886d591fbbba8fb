// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace measure {

/// A tone in a capture: capture(n) = amplitude * sin(2 pi frequency n / rate + phase) + offset + rest.
struct ToneFit {
    double frequency = 0; ///< Hz
    double amplitude = 0; ///< peak, 1 for full scale
    /// Total harmonic distortion plus noise: RMS of the rest over RMS of tone and rest, in dB; -160 at least. The offset counts
    /// as neither.
    double thdPlusNoiseDb = 0;
};

/// Fits a tone near `frequency` by least squares (four parameters, as IEEE 1057 does: the frequency is refined) and measures
/// what is left of the capture's whole band, from 0 to half the sample rate, without a weighting.
///
/// \param frequency within half a period per capture of the true one, above 0 and below half of `sampleRate`
/// \return nothing for fewer than 3 periods, silence or a frequency out of range
std::optional<ToneFit> fitTone(std::span<const float> capture, std::uint32_t sampleRate, double frequency);

} // namespace measure
