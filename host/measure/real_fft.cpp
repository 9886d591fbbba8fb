// SPDX-License-Identifier: Apache-2.0
#include "host/measure/real_fft.h"

#include <cassert>
#include <new>

namespace measure {

void RealFft::Release::operator()(kiss_fftr_state *plan) const { kiss_fftr_free(plan); }

RealFft::RealFft(std::size_t size)
    : size_(size), forward_(kiss_fftr_alloc(static_cast<int>(size), 0, nullptr, nullptr)),
      inverse_(kiss_fftr_alloc(static_cast<int>(size), 1, nullptr, nullptr))
{
    if (!forward_ || !inverse_)
        throw std::bad_alloc();
}

void RealFft::forward(std::span<const float> values, Spectrum &spectrum)
{
    assert(values.size() == size_);
    spectrum.resize(binCount());
    kiss_fftr(forward_.get(), values.data(), spectrum.data());
}

void RealFft::inverse(const Spectrum &spectrum, std::span<float> values)
{
    assert(spectrum.size() == binCount() && values.size() == size_);
    kiss_fftri(inverse_.get(), spectrum.data(), values.data());
}

} // namespace measure
