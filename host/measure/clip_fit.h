// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace measure {

/// How a clip lies in a capture of the same sample rate: capture(n) = gain * clip((n - delay) / (1 + stretch)) + residual.
struct ClipFit {
    double gain = 0;    ///< below 0 for opposite polarity
    double delay = 0;   ///< frames of the capture before the clip begins
    double stretch = 0; ///< above 0: the capture lasts longer than the clip
    /// Power of the scaled clip over that of the residual, in dB; 120 at most.
    double snrDb = 0;
    /// Mean power of the residual under the clip; 1 for a full-scale square wave.
    double residualPower = 0;
};

/// A stretch is trusted where the signal stands that far above the residual.
inline constexpr double minStretchSnrDb = 40.0;
/// Clock errors up to this are found; sound cards have some ten millionths, defects some hundreds.
inline constexpr double maxStretch = 0.001;

/// Finds the clip near `delay` (to about 2 ms) by least squares, to about 1/1000 of a frame without noise. The stretch comes
/// from the delays of the clip's first and last third, as far as there is sound in it.
///
/// \param clip,capture one sample rate, finite values. What lies outside of the capture is silence.
/// \return nothing for a silent clip or capture.
std::optional<ClipFit> fitClip(std::span<const float> capture, std::span<const float> clip, std::int64_t delay);

} // namespace measure
