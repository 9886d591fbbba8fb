// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/stop_flag.h"

namespace ostra::audio {

/// Workers that did not end in time after they were told to, and were left to themselves: a device of a sound server that does
/// not answer can take for ever to close. Such a worker still uses the sound library. Used by one thread at a time.

/// Counts the worker of this job until it is gone, which shows by nobody holding the flag any more; the caller must let go of
/// its own reference. Throws nothing: without memory for the note the worker counts for ever.
void abandonWorker(const StopFlag &stopFlag) noexcept;

/// How many of them are still there.
int abandonedWorkerCount() noexcept;

/// Shuts the sound library down, unless an abandoned worker still uses it: then one line is logged and the library left as it
/// is.
void quitSoundLibrary() noexcept;

} // namespace ostra::audio
