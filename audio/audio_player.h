// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/audio_device_handle.h"
#include "audio/audio_recording.h"
#include "audio/audio_stream.h"
#include "audio/stop_flag.h"
#include "audio/transfer_buffer.h"

#include <string>

namespace ostra::audio {

/// Plays a recording on one output device. One thread at a time, which is blocked for the length of a playback; only the stop
/// flag is touched by others. Destroy on the thread that played: closing the device needs what opening it needed.
class AudioPlayer {
public:
    explicit AudioPlayer(StopFlag stopFlag);
    AudioPlayer(const AudioPlayer &) = delete;
    AudioPlayer &operator=(const AudioPlayer &) = delete;

    /// Plays a copy of the recording on the device of this name (UTF-8) until the stop flag is cleared or the device stops. It
    /// does not end with the recording: from then on each buffer goes out as the sound library hands it over. The device
    /// stays open, paused, until the next call or the engine's end; a next call closes it and opens anew.
    ///
    /// Throws std::ios_base::failure, "Device was disconnected", when the device vanished or could not be opened,
    /// std::exception when the recording is shorter than its own `seconds` (after the device was opened), std::bad_alloc when
    /// there is no memory.
    void play(const std::string &deviceName, const AudioRecording &recording);

private:
    void takeFormat(const AudioRecording &recording);
    void openDevice(const std::string &deviceName);

    StreamFormat format_;
    StopFlag stopFlag_;
    TransferBuffer transfer_;
    AudioDeviceHandle device_; // after the buffer, which must be there until the device is paused
};

} // namespace ostra::audio
