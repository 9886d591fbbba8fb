// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/cli/cli_process.h"

#include <QCoreApplication>
#include <QDir>

namespace {

constexpr int limitMilliseconds = 60'000; // a run takes one to five seconds

} // namespace

QProcessEnvironment cliEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("NO_COLOR"));
    return environment;
}

QString bundleFolder() { return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../../../bundle")); }

QString cliPath(const QString &folder) { return folder + QStringLiteral("/TamrexDiagnosticsCLI"); }

CliRun runCli(const QStringList &arguments, const QProcessEnvironment &environment, const QString &program,
              const QString &workingFolder)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(workingFolder);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForFinished(limitMilliseconds) || process.exitStatus() != QProcess::NormalExit)
        return {-1, process.readAllStandardOutput(), process.readAllStandardError() + process.errorString().toUtf8()};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}
