// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/clip_buffer.h"
#include "contract/system_component.h"

#include <cstdint>
#include <string>
#include <utility>

namespace ostra::audio {

/// The device and the clip that the operations of sound_clip.h work on.
struct ClipState {
    /// Id that the last opening gave; 2 or more for an open device. Closing keeps it, and the sound library hands the same
    /// number out again at once: only `isOpen` tells whether it is still ours.
    SDL_AudioDeviceID deviceId = 0;
    std::uint32_t firstSpare = 0;  ///< not used here; part of the record
    std::uint32_t secondSpare = 1; ///< likewise
    SDL_AudioSpec spec{};          ///< format of the last clip, or of the fallback sound; all zero before
    ClipBuffer clip;               ///< kept until a later load replaces it or the component dies: closing never frees it
    std::uint32_t clipByteCount = 0;
    bool isOpen = false; ///< between an opening that succeeded and the close that belongs to it
};

/// One output device of the machine. One thread at a time.
class AudioComponent final : public SystemComponent {
public:
    /// `deviceName` is the name by which the sound library lists and opens the device (UTF-8). Also reads the configuration
    /// file again, so that the language of the clips is current for every component made.
    explicit AudioComponent(const std::string &deviceName);

    void *reserved4() override { return nullptr; }
    bool reserved5() override { return true; }
    bool reserved6() override { return true; }
    void reserved7() override {}
    bool reserved8() override { return true; }
    void reserved9() override {}

    /// Whether the user has accepted the playback test's instructions on this device: 0 not asked since it was made or last
    /// reset, 1 accepted, 2 the last run was cancelled by an event; any other value is an answer that was no acceptance.
    std::int32_t instructionsState() const noexcept { return instructionsState_; }
    void setInstructionsState(std::int32_t value) noexcept { instructionsState_ = value; }

    ClipState &clipState() noexcept { return clipState_; }
    const ClipState &clipState() const noexcept { return clipState_; }

    /// Starts the description anew: no properties, the device name as identity text.
    void beginDescription();
    void addProperty(const char *key, std::string value) { properties().emplace_back(key, std::move(value)); }

private:
    std::int32_t instructionsState_ = 0;
    ClipState clipState_;
};

} // namespace ostra::audio
