// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"

#include <QStringList>

namespace host {

/// What the run cannot tell, one sentence each, for the reader of its report.
QStringList runLimits(const RunRecord &record);

} // namespace host
