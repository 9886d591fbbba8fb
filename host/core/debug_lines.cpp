// SPDX-License-Identifier: Apache-2.0
#include "host/core/debug_lines.h"

#include <QLoggingCategory>

namespace host {

// The variable's rules come after these and go before them.
void hideDebugLines() { QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); }

} // namespace host
