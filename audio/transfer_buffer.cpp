// SPDX-License-Identifier: Apache-2.0
#include "audio/transfer_buffer.h"

#include <algorithm>
#include <cstring>

namespace ostra::audio {

namespace {

// One byte in hand at the end, by design; also what keeps an empty buffer from counting backwards.
constexpr std::uint32_t reservedByteCount = 1;

} // namespace

void TransferBuffer::bind(std::unique_ptr<std::uint8_t[]> bytes, std::uint32_t byteCount) noexcept
{
    bytes_ = std::move(bytes);
    byteCount_ = byteCount;
    position_ = 0;
}

void SDLCALL TransferBuffer::capture(void *buffer, Uint8 *stream, int streamByteCount) noexcept
{
    TransferBuffer &self = *static_cast<TransferBuffer *>(buffer);
    if (self.available() <= reservedByteCount)
        return;
    const std::uint32_t room = self.available() - reservedByteCount;
    if (streamByteCount <= 0) { // nothing will come any more
        self.position_ += room;
        return;
    }
    const std::uint32_t byteCount = std::min(room, static_cast<std::uint32_t>(streamByteCount));
    std::memcpy(self.bytes_.get() + self.position_, stream, byteCount);
    self.position_ += byteCount;
}

void SDLCALL TransferBuffer::playback(void *buffer, Uint8 *stream, int streamByteCount) noexcept
{
    TransferBuffer &self = *static_cast<TransferBuffer *>(buffer);
    if (self.available() <= reservedByteCount || streamByteCount <= 0)
        return;
    const std::uint32_t byteCount = std::min(self.available() - reservedByteCount, static_cast<std::uint32_t>(streamByteCount));
    std::memcpy(stream, self.bytes_.get() + self.position_, byteCount);
    self.position_ += byteCount;
}

} // namespace ostra::audio
