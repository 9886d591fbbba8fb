// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_reason.h"

namespace host {

/// What the reader of any verdict must know of the volumes: a run raises them, so that a machine which is muted or turned down
/// passes and is as silent afterwards as before. Keys of the context "HOST"; their argument is the endpoint's name. The verdict
/// does not count them.
QList<RunReason> warningsOf(const RunRecord &record);

} // namespace host
