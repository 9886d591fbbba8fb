// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/listener/sound_history.h"

#include <array>
#include <functional>
#include <span>

namespace host {

/// A tenth of a second of a capture.
struct MeterReading {
    static constexpr std::size_t waveCount = 5;

    /// Lowest and highest sample of a fiftieth of a second, over both channels.
    struct Extremes {
        float lowest = 0;
        float highest = 0;
    };

    SteadyTime end;
    double peakDbfs = lowestDbfs;                          ///< the highest sample of either channel
    double rmsDbfs = lowestDbfs;                           ///< over both channels
    std::array<double, captureChannelCount> channelDbfs{}; ///< RMS of each
    double differenceDbfs = lowestDbfs;                    ///< RMS of left minus right
    std::array<Extremes, waveCount> wave{};
};

/// Measures a capture ten times a second, for eyes and for reports. One thread.
class SignalMeter {
public:
    using Sink = std::function<void(const MeterReading &)>;

    explicit SignalMeter(Sink sink);

    /// Interleaved frames at `captureRate`, whose last one arrived at `end`.
    void feed(std::span<const float> interleaved, SteadyTime end);

private:
    void add(float left, float right);
    void tell(SteadyTime end);

    Sink sink_;
    std::size_t frameCount_ = 0;
    float peak_ = 0;
    std::array<double, captureChannelCount> energies_{};
    double differenceEnergy_ = 0;
    std::array<MeterReading::Extremes, MeterReading::waveCount> wave_{};
};

} // namespace host
