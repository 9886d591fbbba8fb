// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/listener/stream_listener.h"
#include "host/measure/digit_clips.h"

#include <array>
#include <vector>

/// Captures made of the real clips, and what the listener makes of them.
namespace digit_streams {

inline constexpr std::array languages{"pt_BR", "en_US", "es_ES", "fr_FR", "it_IT", "de_DE", "nl_NL", "zh_CN", "ja_JP"};

measure::DigitClips clipsOf(const char *language);

/// One channel at the capture's rate.
using Stream = std::vector<float>;

Stream silence(double seconds);
/// `lead` seconds of silence, then each digit followed by `gap` seconds of it.
Stream spoken(const measure::DigitClips &clips, const std::vector<int> &digits, double gap = 1.0, double lead = 0.7);
/// Adds white noise, the same for every call, whose power within 4 kHz is `decibels` above that of the speech.
void addNoise(Stream &stream, const measure::DigitClips &clips, double decibels);
void append(Stream &stream, const Stream &more);

/// Feeds the stream as both channels in blocks of 1024 frames, the first of which begins at `start`.
std::vector<host::HeardSound> hear(const measure::DigitClips &clips, const Stream &stream, host::SteadyTime start = {});
/// The digits of what was heard, -1 for another sound.
std::vector<int> digitsOf(const std::vector<host::HeardSound> &sounds);

} // namespace digit_streams
