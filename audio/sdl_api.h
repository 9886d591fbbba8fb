// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <SDL.h>

namespace ostra::audio {

/// The calls into the sound library that this module makes. Automated tests replace entries to count calls or to make one
/// fail; the product never does.
struct SdlApi {
    decltype(&SDL_setenv) setEnvironment = &SDL_setenv;
    decltype(&SDL_InitSubSystem) initSubSystem = &SDL_InitSubSystem;
    decltype(&SDL_Quit) quit = &SDL_Quit;
    decltype(&SDL_GetNumAudioDevices) deviceCount = &SDL_GetNumAudioDevices;
    decltype(&SDL_GetAudioDeviceName) deviceName = &SDL_GetAudioDeviceName;
    decltype(&SDL_GetCurrentAudioDriver) currentDriver = &SDL_GetCurrentAudioDriver;
    decltype(&SDL_OpenAudioDevice) openDevice = &SDL_OpenAudioDevice;
    decltype(&SDL_CloseAudioDevice) closeDevice = &SDL_CloseAudioDevice;
    decltype(&SDL_PauseAudioDevice) pauseDevice = &SDL_PauseAudioDevice;
    decltype(&SDL_GetAudioDeviceStatus) deviceStatus = &SDL_GetAudioDeviceStatus;
    decltype(&SDL_QueueAudio) queueAudio = &SDL_QueueAudio;
    decltype(&SDL_RWFromFile) streamFromFile = &SDL_RWFromFile;
    decltype(&SDL_RWFromConstMem) streamFromMemory = &SDL_RWFromConstMem;
    decltype(&SDL_RWclose) closeStream = &SDL_RWclose;
    decltype(&SDL_LoadWAV_RW) loadWav = &SDL_LoadWAV_RW;
    decltype(&SDL_FreeWAV) freeWav = &SDL_FreeWAV;
    decltype(&SDL_Delay) delay = &SDL_Delay;
    decltype(&SDL_TLSCleanup) cleanUpThread = &SDL_TLSCleanup;
};

/// The calls in force. Written by tests only, before any thread of the module runs.
SdlApi &sdl() noexcept;

} // namespace ostra::audio
