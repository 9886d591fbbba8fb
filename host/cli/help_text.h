// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace host {

/// The first lines of the help, with a pointer to the rest.
QString usageText();
/// All that --help prints: commands, options, examples and exit codes.
QString helpText();

} // namespace host
