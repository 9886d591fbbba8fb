// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <span>
#include <vector>

namespace measure {

/// Reads a sound between its frames, by a sinc of 48 frames under a Blackman window from a table of 1024 steps. The error is 80
/// dB below the sound up to 0.8 of half its sample rate. What lies outside is silence. Immutable.
class FractionReader {
public:
    FractionReader();

    double read(std::span<const float> samples, double position) const;

private:
    const std::vector<float> &table_; // made once and shared
};

} // namespace measure
