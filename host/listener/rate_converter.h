// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <SDL.h>

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace host {

/// Brings interleaved stereo frames to `captureRate`, in pieces, as one stream. Frames at that rate pass through as they are.
class RateConverter {
public:
    /// Throws std::bad_alloc without memory.
    explicit RateConverter(std::uint32_t rate);

    /// What is ready by now; the last few hundred frames come with the next call. Valid until then.
    std::span<const float> convert(std::span<const float> stereo);

private:
    struct Free {
        void operator()(SDL_AudioStream *stream) const { SDL_FreeAudioStream(stream); }
    };

    std::unique_ptr<SDL_AudioStream, Free> stream_; ///< null where nothing is to be done
    std::vector<float> ready_;
};

} // namespace host
