// SPDX-License-Identifier: Apache-2.0
#pragma once

/// What this process holds of the system.
namespace process_load {

int threadCount();
/// Descriptors, or handles.
int handleCount();
/// A path of the system below, as a program started from here wants it.
const char *shell();

} // namespace process_load
