// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace host {

/// What the guardian tells on its standard output: one line of JSON each.
struct GuardianMessage {
    enum class Kind {
        ready,   ///< every volume is noted; `text` is empty
        putBack, ///< one endpoint had to be put back: its description
        done,    ///< the end: nothing is left to put back
        failed,  ///< the end: why, for the user
        busy,    ///< the end: another guardian is at work; why, for the user
    };
    Kind kind = Kind::done;
    QString text;
};

/// With the line's end.
QByteArray toLine(const GuardianMessage &message);
/// Nothing when the line is not one of these.
std::optional<GuardianMessage> fromLine(const QByteArray &line);

/// What the host writes on the guardian's standard input for the normal end. Anything else is passed over.
inline constexpr char finishCommand[] = "finish\n";

/// Finds the command in what comes through the pipe, in pieces of any size. Needs no more memory than the command.
class CommandReader {
public:
    /// True when the command is complete.
    bool feed(const QByteArray &bytes);

private:
    QByteArray line_;
};

} // namespace host
