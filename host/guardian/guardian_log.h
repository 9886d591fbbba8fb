// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLoggingCategory>

namespace host {

Q_DECLARE_LOGGING_CATEGORY(guardianLog)

} // namespace host
