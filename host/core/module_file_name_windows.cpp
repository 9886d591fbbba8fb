// SPDX-License-Identifier: Apache-2.0
#include "host/core/module_file_name.h"

namespace host {

const char *moduleFileName() noexcept { return "module_audio.dll"; }

} // namespace host
