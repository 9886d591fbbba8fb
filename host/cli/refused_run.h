// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/cli/command_line.h"
#include "host/cli/host_process.h"
#include "host/cli/run_plan.h"
#include "host/core/device_list.h"

namespace host {

class Console;

/// What the graphical host would have known.
struct MissedRun {
    Device device;
    QString testNameKey; ///< such as "AUDIO_PLAYBACK_TEST"
    HostEnd end;
};

/// Writes the reports of a run that did not take place or broke down: its code, why, and nothing about what was played or
/// heard. They take the place of reports that are there. A file that cannot be written is complained of.
void reportWithoutHost(const CommandLine &line, const PlannedRun &run, const MissedRun &missed, Console &console);

/// The language in which the graphical host would perform that run.
QString languageOf(const CommandLine &line, const PlannedRun &run);

} // namespace host
