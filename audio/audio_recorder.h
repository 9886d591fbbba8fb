// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/audio_device_handle.h"
#include "audio/audio_recording.h"
#include "audio/audio_stream.h"
#include "audio/stop_flag.h"
#include "audio/transfer_buffer.h"

#include <cstdint>
#include <memory>
#include <string>

namespace ostra::audio {

/// Records from one microphone. One thread at a time, which is blocked for the length of a recording; only the stop flag is
/// touched by others. Destroy on the thread that recorded: closing the device needs what opening it needed.
class AudioRecorder {
public:
    explicit AudioRecorder(StopFlag stopFlag);
    AudioRecorder(const AudioRecorder &) = delete;
    AudioRecorder &operator=(const AudioRecorder &) = delete;

    /// Records from the device of this name (UTF-8) until the stop flag is cleared or the device stops; a full buffer does not
    /// end it. The result holds `seconds` and one more, the part that was never reached filled with silence. Every size is
    /// reckoned in 32 bits, so that from 12,173 s of the format asked for on it is too small; 65,535 s hold nothing.
    ///
    /// May be called again: the open device is kept, whatever the name, and its callback is bound to the new recording's
    /// memory. Throws std::ios_base::failure, "Device was disconnected", when the device vanished or could not be opened,
    /// std::bad_alloc when there is no memory.
    std::unique_ptr<AudioRecording> record(const std::string &deviceName, std::uint16_t seconds);

private:
    void openDevice(const std::string &deviceName);
    std::unique_ptr<AudioRecording> copyOfTransfer(std::uint16_t seconds);

    StreamFormat format_;
    StopFlag stopFlag_;
    TransferBuffer transfer_;
    AudioDeviceHandle device_; // after the buffer, which must be there until the device is paused
};

} // namespace ostra::audio
