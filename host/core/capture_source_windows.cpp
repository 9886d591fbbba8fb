// SPDX-License-Identifier: Apache-2.0
#include "host/core/capture_source.h"

namespace host {

QString systemSource(const QString &source) { return source; }

} // namespace host
