// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace host {

enum class Command { none, help, version, list, info };

/// What the user asked for with the ordinary commands and options.
struct CommandLine {
    Command command = Command::none; ///< none: the program was started without any argument
    bool isJson = false;
    std::optional<QString> configFolder; ///< folder to work in, as it was given
};

/// Why a command line cannot be followed: one line for the user.
struct UsageError {
    QString message;
};

/// `arguments` begin with the program's own path.
std::variant<CommandLine, UsageError> parseCommandLine(const QStringList &arguments);

} // namespace host
