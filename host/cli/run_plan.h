// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/cli/command_line.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace host {

/// One start of the graphical host.
struct PlannedRun {
    QString test; ///< letter
    QString device;
    QString language;     ///< code; empty for the user's own
    int deviceNumber = 1; ///< counts from 1, in the order in which the user named them
    int number = 0;       ///< counts from 1; 0 when there is one run only
};

/// Each test on each device in each language that the line asks for; the languages of one test and device follow each other.
QList<PlannedRun> planRuns(const CommandLine &line, const QStringList &devices);

/// Without the folder or its file the language would be another than the one that was asked for.
std::optional<UsageError> checkConfig(const CommandLine &line);

/// What `run` refuses before it looks at a device.
std::optional<UsageError> checkRun(const CommandLine &line);

/// The graphical host's arguments. `configFolder` holds the run's language; empty for the user's own.
QStringList argumentsOf(const CommandLine &line, const PlannedRun &run, const QString &configFolder);

/// The capture source that hears the run's device.
QString sourceOf(const CommandLine &line, const PlannedRun &run);
/// Every report that the line wants of that run.
QStringList reportsOf(const CommandLine &line, const PlannedRun &run);

/// Name of the run's reports without their suffix, such as "1-Speakers-p-en_US": letters, digits, "-" and "_" only.
QString reportNameOf(const PlannedRun &run);

/// The n-th report's name: "a/b.json" becomes "a/b-2.json". `number` counts from 1.
QString numberedReport(const QString &file, int number);

} // namespace host
