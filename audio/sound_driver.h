// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace ostra::audio {

/// Name of the sound library's back end on this platform, as the environment variable SDL_AUDIODRIVER takes it.
const char *soundDriverName() noexcept;

} // namespace ostra::audio
