// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/gui/options.h"

namespace host {

/// The graphical program from the first window to the exit code. Needs the QApplication.
int runGuiProgram(const Options &options);

} // namespace host
