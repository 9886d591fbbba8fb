// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace ostra::audio {

/// Name of the sound library's back end on this platform, as the environment variable SDL_AUDIODRIVER takes it.
const char *soundDriverName() noexcept;

/// Whether the back end survives being started now. False on Linux when the sound server has no default device: the library
/// then takes the length of a name that is not there, and the host dies with it. Waits up to 2 s for the server.
bool canStartSoundLibrary();

} // namespace ostra::audio
