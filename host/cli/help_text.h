// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace host {

/// The first lines of the help, with a pointer to the rest.
QString usageText();
/// All that --help prints: commands, options, examples and exit codes; of one command when `topic` names it.
QString helpText(const QString &topic = QString());

/// The manual page, section 1, as troff.
QString manualPage();
/// The completion for the shell bash.
QString bashCompletion();

} // namespace host
