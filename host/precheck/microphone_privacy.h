// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {

/// Whether the system's privacy switch keeps this program from microphones. Windows: the consent store of the user and of the
/// machine, for all programs and for desktop programs; a switch that does not exist is open. Linux has none for programs that
/// are not confined: never. Any thread.
bool isMicrophoneBlocked();

} // namespace host
