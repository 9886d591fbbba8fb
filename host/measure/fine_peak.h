// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <span>

namespace measure {

/// The peak of a correlation between its frames.
struct FinePeak {
    /// In frames; where the clip begins in the capture.
    double lag = 0;
    /// Sum of capture times clip there, negative for opposite polarity.
    double correlation = 0;
};

/// Finds the largest |correlation| of clip and capture within four frames of a lag, to about 1/100 of a frame. The
/// correlation at whole frames misses it by up to half a frame: a tenth of the height for hissed digits, or a
/// neighbouring period for a narrow band. What lies outside the capture counts as silence.
FinePeak findFinePeak(std::span<const float> capture, std::span<const float> clip, std::int64_t lag);

} // namespace measure
