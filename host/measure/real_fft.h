// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <kiss_fftr.h>

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

namespace measure {

/// size / 2 + 1 bins, from 0 to half the sample rate.
using Spectrum = std::vector<kiss_fft_cpx>;

/// Forward and inverse transform of real blocks of one size. One thread at a time.
class RealFft {
public:
    /// \param size values per block, even and above 0.
    explicit RealFft(std::size_t size);

    std::size_t size() const { return size_; }
    std::size_t binCount() const { return size_ / 2 + 1; }

    /// Unscaled transform of size() values into binCount() bins.
    void forward(std::span<const float> values, Spectrum &spectrum);

    /// Inverse of forward() times size().
    void inverse(const Spectrum &spectrum, std::span<float> values);

private:
    struct Release {
        void operator()(kiss_fftr_state *plan) const;
    };
    using Plan = std::unique_ptr<kiss_fftr_state, Release>;

    static Plan makePlan(std::size_t size, bool isInverse);

    std::size_t size_;
    Plan forward_; // made when first used, as most transform one way only
    Plan inverse_;
};

} // namespace measure
