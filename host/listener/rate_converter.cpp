// SPDX-License-Identifier: Apache-2.0
#include "host/listener/rate_converter.h"

#include "host/listener/block_ring.h"

#include <algorithm>
#include <new>

namespace host {

RateConverter::RateConverter(std::uint32_t rate)
{
    if (rate == captureRate)
        return;
    constexpr auto channels = static_cast<std::uint8_t>(captureChannelCount);
    stream_.reset(SDL_NewAudioStream(AUDIO_F32SYS, channels, static_cast<int>(rate), AUDIO_F32SYS, channels,
                                     static_cast<int>(captureRate)));
    if (!stream_)
        throw std::bad_alloc();
}

std::span<const float> RateConverter::convert(std::span<const float> stereo)
{
    if (!stream_)
        return stereo;
    if (SDL_AudioStreamPut(stream_.get(), stereo.data(), static_cast<int>(stereo.size_bytes())) != 0)
        throw std::bad_alloc();
    ready_.resize(static_cast<std::size_t>(std::max(0, SDL_AudioStreamAvailable(stream_.get()))) / sizeof(float));
    const int byteCount = SDL_AudioStreamGet(stream_.get(), ready_.data(), static_cast<int>(ready_.size() * sizeof(float)));
    ready_.resize(static_cast<std::size_t>(std::max(0, byteCount)) / sizeof(float));
    return ready_;
}

} // namespace host
