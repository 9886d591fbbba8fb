// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"

#include <QString>

namespace host {

/// The digits of an unattended run as a table of plain text for a console, each line ended by "\n"; empty without digits.
QString digitTable(const RunRecord &record);

} // namespace host
