// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

namespace host {

/// What a command line names besides the device that is tested; empty where it names nothing.
struct RunNames {
    QString source; ///< under the system's name for it
    QString microphone;
    QString speakThrough;
};

/// "unknown KIND 'NAME' (known: 'A', 'B')". The names are as they are: a terminal needs them escaped.
QString unknownName(const QString &kind, const QString &name, const QStringList &known);

/// Complaint about the first of the names that this machine does not have; empty when it has them all. What the system does not
/// list, or lists none of, is no mistake of the user: the run itself tells what is lacking. 4 s at most; any thread.
///
/// \param outputs names of the devices that can be tested
QString wrongName(const RunNames &names, const QStringList &outputs);

} // namespace host
