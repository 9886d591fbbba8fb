// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <span>

namespace host {

/// How a shell completes the value of an option or the argument of a command.
enum class Completion { none, file, folder, words };

/// One option. The command line, every help text, the manual page and the shell completion are made from these rows.
struct OptionRow {
    const char *name;
    const char *letter;   ///< short form; null for none
    const char *value;    ///< name of its value; null for a switch
    const char *commands; ///< those that take it, separated by blanks; null: it stands alone or goes with any
    Completion completion;
    const char *words; ///< for Completion::words, separated by blanks
    const char *explanation;
    bool mayRepeat;
};

struct CommandRow {
    const char *name;
    const char *arguments; ///< null for none
    Completion completion; ///< of its argument
    const char *words;
    const char *explanation; ///< sentences
    const char *examples;    ///< command lines without the program's name, separated by line ends
};

std::span<const OptionRow> optionRows();
std::span<const CommandRow> commandRows();

/// The row of that command; null when there is none.
const CommandRow *findCommand(const QString &name);
bool takesOption(const CommandRow &command, const OptionRow &option);
/// The pieces of a list of a row; none of a null.
QStringList wordsOf(const char *list, QChar separator = u' ');

struct ExitCodeRow {
    int code;
    const char *meaning;
};
std::span<const ExitCodeRow> exitCodeRows();

} // namespace host
