// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// How one run of the command-line program ended. -1: it did not start, crashed or hung.
struct CliRun {
    int code = -1;
    QByteArray output;
    QByteArray errors;
};

/// The program's environment: this process's, without what would change its behaviour.
QProcessEnvironment cliEnvironment();
/// Folder of the program that was built together with this test.
QString bundleFolder();
/// Path of the program in `folder`.
QString cliPath(const QString &folder = bundleFolder());
/// Runs it to its end with closed standard input.
CliRun runCli(const QStringList &arguments, const QProcessEnvironment &environment = cliEnvironment(),
              const QString &program = cliPath(), const QString &workingFolder = QString());
