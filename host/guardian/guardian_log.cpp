// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/guardian_log.h"

namespace host {

Q_LOGGING_CATEGORY(guardianLog, "host.guardian", QtWarningMsg)

} // namespace host
