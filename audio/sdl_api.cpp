// SPDX-License-Identifier: Apache-2.0
#include "audio/sdl_api.h"

namespace ostra::audio {

SdlApi &sdl() noexcept
{
    static SdlApi api;
    return api;
}

} // namespace ostra::audio
