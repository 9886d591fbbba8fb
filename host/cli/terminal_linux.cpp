// SPDX-License-Identifier: Apache-2.0
#include "host/cli/terminal.h"

#include <QByteArray>
#include <QtGlobal>

#include <unistd.h>

namespace host {

namespace {

bool knowsStyles()
{
    const QByteArray kind = qgetenv("TERM");
    return !kind.isEmpty() && kind != "dumb";
}

} // namespace

struct Terminal::State {
    bool hasStyles = isatty(STDOUT_FILENO) != 0 && knowsStyles();
    bool errorIsTerminal = isatty(STDERR_FILENO) != 0;
};

Terminal::Terminal() : state_(std::make_unique<State>()) {}

Terminal::~Terminal() = default;

bool Terminal::outputUnderstandsStyles() const { return state_->hasStyles; }

bool Terminal::errorIsWatched() const { return state_->errorIsTerminal; }

QString platformWithoutDisplay() { return QStringLiteral("offscreen"); }

} // namespace host
