// SPDX-License-Identifier: Apache-2.0
#include "host/gui/process_end.h"

#include <csignal>

namespace host {

void guardAbort(void (*end)(int)) noexcept { std::signal(SIGABRT, end); }

} // namespace host
