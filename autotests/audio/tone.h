// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/audio_recording.h"

#include <memory>

/// A pure tone and how to find it again, in the format that the recorder records (44100 Hz, 32-bit float, stereo).
namespace tone {

/// `seconds` and one more of the tone, as a recording of that length has it.
std::shared_ptr<ostra::audio::AudioRecording> make(double frequency, std::uint16_t seconds);

/// For how many seconds, in all, the recording's left channel holds this tone and little else.
double heardSeconds(const ostra::audio::AudioRecording &recording, double frequency);

} // namespace tone
