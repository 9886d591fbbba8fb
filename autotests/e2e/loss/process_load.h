// SPDX-License-Identifier: Apache-2.0
#pragma once

/// What this process holds of the system, and what the system is like.
namespace process_load {

int threadCount();
/// Descriptors, or handles.
int handleCount();
/// Whether the system's own libraries keep threads and handles from their first use on.
bool keepsFirstUse();
/// Whether the sound library waits for a suspended device when it is closed.
bool waitsForSuspended();
/// A path of the system below, as a program started from here wants it.
const char *shell();

} // namespace process_load
