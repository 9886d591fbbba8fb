// SPDX-License-Identifier: Apache-2.0
#include "host/listener/capture.h"

namespace host {

const char *captureDriverName() { return "wasapi"; }

} // namespace host
