// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {

/// Keeps Ctrl-C and a polite kill working: the sound library that the module starts would otherwise catch SIGINT and SIGTERM
/// and turn them into events that nobody reads. Call before the module's instance is made, while no other thread runs.
void keepInterruptSignals();

} // namespace host
