// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <utility>

namespace ostra::audio {

/// Sound kept in memory. Held through shared pointers; the last owner frees it with its samples. Not changed once shared.
struct AudioRecording {
    std::unique_ptr<std::uint8_t[]> samples; ///< interleaved frames, `byteCount` bytes; may be null when that is 0
    std::uint32_t byteCount = 0;             ///< of `samples`; a recording holds one second more than asked for
    std::uint16_t seconds = 0;               ///< the duration asked for
    std::uint16_t frequency = 0;             ///< frames per second, Hz
    std::uint16_t format = 0;                ///< sample format, an `SDL_AudioFormat` code
    std::uint8_t channels = 0;               ///< samples of a frame
    std::uint16_t framesPerCallback = 0;     ///< frames that the sound library moves at a time
};

/// Where a worker leaves its recording for the dialog: shared by everybody who reads or writes it, so that a worker that
/// outlives the dialog still writes into living memory. Written by the worker before it reports status 0, read on the GUI
/// thread only after that report has arrived; one worker at a time.
struct RecordingSlot {
    std::shared_ptr<AudioRecording> recording; ///< null until a first recording was made

    /// On the worker's thread.
    void store(std::shared_ptr<AudioRecording> newest) noexcept
    {
        recording = std::move(newest);
        storedCount_.fetch_add(1, std::memory_order_release);
    }
    /// On the GUI thread: what was stored last.
    std::shared_ptr<AudioRecording> stored() const noexcept
    {
        static_cast<void>(storedCount_.load(std::memory_order_acquire));
        return recording;
    }

private:
    std::atomic<unsigned> storedCount_ = 0; ///< orders what is read after what was stored, beside the report
};

} // namespace ostra::audio
