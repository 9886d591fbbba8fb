// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <memory>

namespace ostra::audio {

/// True while a job may go on; the owner of the job clears it, from any thread, and the job ends within half a second. Never
/// null. Make a fresh one for every job: setting one that was cleared back to true would revive a worker that has not noticed
/// yet.
using StopFlag = std::shared_ptr<std::atomic<bool>>;

/// A flag of its own for one job, true. Throws std::bad_alloc.
inline StopFlag makeStopFlag() { return std::make_shared<std::atomic<bool>>(true); }

} // namespace ostra::audio
