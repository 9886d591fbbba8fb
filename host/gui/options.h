// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/gui/test_session.h"

#include <QString>
#include <QStringList>

#include <span>
#include <variant>

namespace host {

/// What the command line asks for. Paths are absolute: the program's current folder changes.
struct Options {
    bool isHelp = false;
    bool isSelfCheck = false;
    bool isVersion = false;
    bool isManual = false;     ///< the manual page is printed
    bool isCompletion = false; ///< the shell's completion is printed
    bool isUnattended = false;
    bool isDeveloper = false;
    bool isVerbose = false; ///< the module's debug lines are shown
    QString test; ///< letter
    QString device;
    QString source;       ///< with or without `isUnattended`
    QString microphone;   ///< empty for the first one
    QString speakThrough; ///< output; empty for the tested device
    QStringList reportFiles;
    QString verdictFile; ///< file for the exit code alone; empty: none
    QString keptAudio;   ///< file for what is heard; empty: no sound is kept
    QString language;
    bool isChannelCheck = false; ///< left and right are checked before the run
    QString screenshotsFolder;
    QString configFolder;
    int mistypedSequences = 0;
    RunSchedule schedule;
};

struct OptionsError {
    QString message; ///< one line
};

/// `arguments` begin with the program's name. Needs no application object.
std::variant<Options, OptionsError> readOptions(const QStringList &arguments);

/// One option. The command line, --help, the manual page and the shell completion are made from these rows.
struct OptionOfHost {
    const char *name;
    const char *value; ///< null for a switch; FILE, DIR, CODE and words with bars between them can be completed
    const char *explanation;
    bool isUnattendedOnly;
};
std::span<const OptionOfHost> optionsOfHost();

/// What --help prints.
QString optionsHelp();
/// What --print-manual prints; it is shipped.
QString manualOfHost();
/// What --print-completion prints, for bash; it is shipped.
QString completionOfHost();

} // namespace host
