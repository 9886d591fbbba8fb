// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/sdl_api.h"

#include <memory>

namespace ostra::audio {

struct FreeClip {
    void operator()(Uint8 *samples) const noexcept { sdl().freeWav(samples); }
};

/// Samples that the sound library allocated when it loaded a WAVE file.
using ClipBuffer = std::unique_ptr<Uint8, FreeClip>;

} // namespace ostra::audio
