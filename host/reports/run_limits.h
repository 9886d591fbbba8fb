// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"

#include <QStringList>

namespace host {

/// Whether a capture source hears what a device is given to play instead of what its loudspeaker sounds like. Goes by the
/// source's name, which is all that the sound library tells.
bool isMonitor(const QString &source);

/// What the run cannot tell, one sentence each, for the reader of its report.
QStringList runLimits(const RunRecord &record);

} // namespace host
