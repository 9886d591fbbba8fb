// SPDX-License-Identifier: Apache-2.0
#include "host/measure/real_fft.h"

#include <cassert>
#include <new>

namespace measure {

void RealFft::Release::operator()(kiss_fftr_state *plan) const { kiss_fftr_free(plan); }

RealFft::RealFft(std::size_t size) : size_(size) {}

RealFft::Plan RealFft::makePlan(std::size_t size, bool isInverse)
{
    Plan plan(kiss_fftr_alloc(static_cast<int>(size), isInverse ? 1 : 0, nullptr, nullptr));
    if (!plan)
        throw std::bad_alloc();
    return plan;
}

void RealFft::forward(std::span<const float> values, Spectrum &spectrum)
{
    assert(values.size() == size_);
    spectrum.resize(binCount());
    if (!forward_)
        forward_ = makePlan(size_, false);
    kiss_fftr(forward_.get(), values.data(), spectrum.data());
}

void RealFft::inverse(const Spectrum &spectrum, std::span<float> values)
{
    assert(spectrum.size() == binCount() && values.size() == size_);
    if (!inverse_)
        inverse_ = makePlan(size_, true);
    kiss_fftri(inverse_.get(), spectrum.data(), values.data());
}

} // namespace measure
