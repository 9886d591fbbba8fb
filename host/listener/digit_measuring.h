// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/digit_measurement.h"
#include "host/listener/digit_search.h"

#include <array>
#include <vector>

namespace host {

/// Measures digits against the clips that were played; docs/measurements.md defines what. Takes a tenth of a second a digit.
class DigitMeasuring {
public:
    explicit DigitMeasuring(const measure::DigitClips &clips);

    DigitMeasurement measure(const SoundHistory &history, const FoundDigit &found) const;

private:
    /// At the capture's rate and through the same filter; empty for a clip of another rate.
    std::array<std::vector<float>, measure::digitCount> clips_;
};

} // namespace host
