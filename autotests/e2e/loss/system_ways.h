// SPDX-License-Identifier: Apache-2.0
#pragma once

/// What the system below does in its own way.
namespace system_ways {

/// Whether its own libraries keep threads and handles from their first use on.
bool keepsFirstUse();
/// Whether the sound library waits for a suspended device when it is closed.
bool waitsForSuspended();
/// A path of the system below, as a program started from here wants it.
const char *shell();

} // namespace system_ways
