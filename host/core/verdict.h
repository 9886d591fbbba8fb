// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"

#include <cstdint>

namespace host {

/// What a run is shown as.
enum class Verdict { passed, failed, cannotBePerformed, notCompleted, stopped, invalidCall };

/// A pass needs the code of a pass, no message that explains a failure, and nobody who stopped the run. A run whose code and
/// messages contradict each other is not completed, and so is one with a code that no module may return.
Verdict verdictOf(const RunRecord &record);

/// The verdict as a code of `ostra::result`, which is also the exit code of an unattended run.
std::uint32_t codeOf(Verdict verdict) noexcept;

/// Key of the verdict's name, in the context "HOST".
const char *verdictKey(Verdict verdict) noexcept;

} // namespace host
