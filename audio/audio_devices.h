// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

namespace ostra::audio {

/// What the sound library lists, microphones with `capture`, else output devices. Each call looks anew and may block while a
/// device is being opened elsewhere; call them from one thread, the names of one look are gone with the next.

/// Whether there is any device.
bool hasAudioDevices(bool capture);

/// The names (UTF-8) in the library's order, without devices that have none. Throws std::bad_alloc.
std::vector<std::string> listAudioDevices(bool capture);

/// Whether a device of exactly this name (UTF-8) is listed. One that was plugged in again may have come back under another
/// name ("Mic (2)") and counts as gone.
bool isAudioDeviceConnected(const std::string &name, bool capture);

} // namespace ostra::audio
