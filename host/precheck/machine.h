// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"

namespace host {

/// This machine, so that reports of many can be told apart. `moduleVersion` is the caller's to add. Asks the sound server, 2 s
/// at most. Any thread.
Machine readMachine();

/// Name and version of the sound server, such as "pulseaudio 16.1"; empty without an answer.
QString soundServerName();

} // namespace host
