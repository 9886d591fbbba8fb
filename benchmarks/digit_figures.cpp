// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/figures.h"

#include "benchmarks/pairs.h"
#include "benchmarks/workloads.h"
#include "host/measure/matched_filter.h"
#include "host/measure/real_fft.h"
#include "host/measure/resample.h"

namespace bench {

namespace {

constexpr int transformCount = 12;

double secondsToTransform(measure::RealFft &fft, std::span<const float> window)
{
    measure::Spectrum spectrum(fft.binCount());
    return secondsOf([&] {
        for (int transform = 0; transform < transformCount; ++transform)
            fft.forward(window, spectrum);
    });
}

void compareWith(const measure::MatchedFilter &filter, const measure::MonoSound &capture, const char *name,
                 std::vector<float> window)
{
    window.resize(window.size() / 2 * 2);
    measure::RealFft fft(window.size());
    const Comparison comparison =
        compare([&] { return fastest([&] { return secondsOf([&] { static_cast<void>(filter.recognise(capture)); }); }); },
                [&] { return fastest([&] { return secondsToTransform(fft, window); }); });
    print(ratioRow("the operator's decision on a digit", name, 1.2, comparison));
}

} // namespace

void digitFigures()
{
    const measure::DigitClips clips = digitClips();
    const measure::MatchedFilter filter(clips);
    const measure::MonoSound capture = digitCapture(clips);
    compareWith(filter, capture, "12 transforms by KissFFT of the window as captured, 48 kHz", capture.samples);
    compareWith(filter, capture, "12 transforms by KissFFT of the window at 8 kHz, where it is compared",
                measure::toAnalysisRate(capture.samples, capture.sampleRate));
}

} // namespace bench
