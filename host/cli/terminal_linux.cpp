// SPDX-License-Identifier: Apache-2.0
#include "host/cli/terminal.h"

#include <QByteArray>
#include <QtGlobal>

#include <unistd.h>

namespace host {

struct Terminal::State {};

Terminal::Terminal() = default;
Terminal::~Terminal() = default;

bool Terminal::outputUnderstandsStyles() const
{
    const QByteArray kind = qgetenv("TERM");
    return isatty(STDOUT_FILENO) != 0 && !kind.isEmpty() && kind != "dumb";
}

bool Terminal::errorIsWatched() const { return isatty(STDERR_FILENO) != 0; }

} // namespace host
