// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"

#include <QString>

namespace host {

/// Writes UTF-8 to standard output at once.
void print(const QString &text);
/// One line on standard error, after the program's name.
void complain(const QString &message);

/// Verdict, messages, and one line for each digit, as an unattended run prints them. English, but for the messages: those are
/// in the language in force, each followed by its key for scripts.
QString runSummary(const RunRecord &record);

/// A name as a terminal may have it: a driver chose it, and it must neither break the line nor steer the terminal.
QString readable(const QString &name);

/// Complaint about a device that is not there, with the names of those that are.
QString unknownDevice(const QString &name, const QList<Device> &devices);

} // namespace host
