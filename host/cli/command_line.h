// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace host {

enum class Command { none, help, version, manual, completion, list, info, run, report, clips };

/// What the user asked for with the ordinary commands and options.
struct CommandLine {
    Command command = Command::none; ///< none: the program was started without any argument
    bool isJson = false;
    std::optional<QString> configFolder; ///< folder to work in, as it was given
    bool isGnuExit = false;
    QString topic; ///< command that help is asked for; empty: all
    QString file;  ///< argument of `report`
    QSet<QString> switches;
    QMap<QString, QStringList> values; ///< by the option's name

    bool isSet(const char *name) const { return switches.contains(QLatin1String(name)); }
    QStringList all(const char *name) const { return values.value(QLatin1String(name)); }
    QString last(const char *name) const { return values.value(QLatin1String(name)).value(all(name).size() - 1); }
};

/// Why a command line cannot be followed: one line for the user.
struct UsageError {
    QString message;
};

/// `arguments` begin with the program's own path.
std::variant<CommandLine, UsageError> parseCommandLine(const QStringList &arguments);

} // namespace host
