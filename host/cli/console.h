// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/cli/terminal.h"

#include <QByteArray>
#include <QString>

namespace host {

/// Data goes to standard output, everything else to standard error, as UTF-8 with "\n" line ends on every platform.
class Console {
public:
    /// Writes the bytes as they are. A failure is remembered.
    void print(const QByteArray &bytes);
    void print(const QString &text) { print(text.toUtf8()); }
    /// One line on standard error, after the program's name. `message` may quote what the user or a device said.
    void complain(const QString &message);
    /// A whole text on standard error.
    void explain(const QString &text);
    /// Tells somebody who watches what takes so long; a log or a pipe gets nothing.
    void tellProgress(const QString &line);

    /// Whether standard output takes ANSI styles: a terminal that knows them, and the user has not set NO_COLOR to a text.
    bool isStyled() const;
    /// Whether everything printed so far has arrived, what the buffers held included.
    bool flush();

private:
    Terminal terminal_;
    bool hasFailed_ = false;
};

} // namespace host
