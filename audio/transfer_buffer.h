// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <SDL.h>

#include <cstdint>
#include <memory>
#include <utility>

namespace ostra::audio {

/// The memory between a job and the sound library's thread. The object stays where it is for as long as the device that was
/// opened with it; its bytes are exchanged between jobs, and only while that device is paused. `capture` and `playback` run on
/// the sound library's thread: they neither allocate, lock, log nor throw.
class TransferBuffer {
public:
    TransferBuffer() = default;
    TransferBuffer(const TransferBuffer &) = delete;
    TransferBuffer &operator=(const TransferBuffer &) = delete;

    /// Takes `byteCount` bytes for the next job, starting at the first.
    void bind(std::unique_ptr<std::uint8_t[]> bytes, std::uint32_t byteCount) noexcept;
    /// Frees the bytes; with none bound the callbacks do nothing.
    void unbind() noexcept { bind(nullptr, 0); }

    std::uint8_t *data() noexcept { return bytes_.get(); }
    std::uint32_t byteCount() const noexcept { return byteCount_; }
    std::uint32_t position() const noexcept { return position_; }

    /// Appends what the microphone gave. The last byte of the buffer is never written.
    static void SDLCALL capture(void *buffer, Uint8 *stream, int streamByteCount) noexcept;
    /// Hands out what comes next and leaves the rest of the stream as it was given. The last byte is never handed out.
    static void SDLCALL playback(void *buffer, Uint8 *stream, int streamByteCount) noexcept;

private:
    std::uint32_t available() const noexcept { return byteCount_ - position_; }

    std::unique_ptr<std::uint8_t[]> bytes_;
    std::uint32_t byteCount_ = 0;
    std::uint32_t position_ = 0; ///< of the next byte to write or to hand out
};

/// Binds bytes for the length of one job and frees them at its end. The device must be paused by then.
class TransferLease {
public:
    TransferLease(TransferBuffer &buffer, std::unique_ptr<std::uint8_t[]> bytes, std::uint32_t byteCount) noexcept
        : buffer_(buffer)
    {
        buffer_.bind(std::move(bytes), byteCount);
    }
    ~TransferLease() { buffer_.unbind(); }
    TransferLease(const TransferLease &) = delete;
    TransferLease &operator=(const TransferLease &) = delete;

private:
    TransferBuffer &buffer_;
};

} // namespace ostra::audio
