// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace ostra::audio {

class AudioComponent;

/// Loads the clip of `number` (callers pass 0 to 9) in the language in force and opens the device with the clip's format,
/// paused, the clip queued. Returns 1 when it is ready to play, 0 when not: the device cannot be opened, one of the ten clips
/// is missing, or queuing failed. A missing or unreadable file leaves the format as it was; without any format the built-in
/// fallback sound gives one, after the opening. Opens a device at every call: close after every clip, also after a 0.
/// Blocks as long as the sound server takes to open.
std::int32_t loadClip(AudioComponent &component, std::int32_t number);

/// Starts the queued clip and blocks the calling thread for 1000 ms. A longer clip is cut by the close that follows.
void playClip(const AudioComponent &component);

/// Whether the device is open and not paused.
bool isPlaying(const AudioComponent &component);

/// Closes the device if it is open. The clip stays loaded and the device id keeps its value. Blocks while the sound library
/// drains: twice the buffer's duration and the back end's own time.
void closeDevice(AudioComponent &component);

} // namespace ostra::audio
