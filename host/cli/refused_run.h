// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/cli/command_line.h"
#include "host/cli/run_plan.h"
#include "host/core/device_list.h"

namespace host {

class Console;

/// Writes the reports of a run that does not take place: code 3, why, and nothing about what was played or heard. A file that
/// cannot be written is complained of. \param testNameKey such as "AUDIO_PLAYBACK_TEST"
void reportRefusal(const CommandLine &line, const PlannedRun &run, const Device &device, const QString &testNameKey,
                   const QString &reason, Console &console);

/// The language in which the graphical host would perform that run.
QString languageOf(const CommandLine &line, const PlannedRun &run);

} // namespace host
