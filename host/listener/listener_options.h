// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <variant>

namespace host {

enum class ListenerTask { help, list, listen };

struct ListenerOptions {
    ListenerTask task = ListenerTask::help;
    QString source;
    QString clipsFolder; ///< holds one folder a language
    QString language;
    QString clipFile;       ///< a clip to look for instead of digits; empty for none
    bool isMetered = false; ///< tells the level ten times a second
    QString recordFile;     ///< what is heard is kept there; empty for none
};

/// Why a command line cannot be followed, in one line.
struct ListenerUsageError {
    QString message;
};

/// `arguments` begin with the program's own path.
std::variant<ListenerOptions, ListenerUsageError> parseListenerOptions(const QStringList &arguments);

QString listenerHelp();

} // namespace host
