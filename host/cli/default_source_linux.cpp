// SPDX-License-Identifier: Apache-2.0
#include "host/cli/default_source.h"

#include "host/core/capture_source.h"

namespace host {

QString defaultSource(const QString &device) { return monitorPrefix + device; }

} // namespace host
