// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <csignal>

namespace host {

inline constexpr int interruptSignal = SIGINT;

/// From now on Ctrl-C and a request to end are only noted.
void catchSignals();
/// Number of the signal that came first; 0 while there was none.
int caughtSignal() noexcept;

} // namespace host
