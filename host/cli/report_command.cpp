// SPDX-License-Identifier: Apache-2.0
#include "host/cli/report_command.h"

#include "host/cli/console.h"
#include "host/reports/report_formats.h"
#include "host/reports/run_report.h"

#include <QFile>

namespace host {

namespace {

/// A report has some kilobytes; what is much larger is none, and must not fill the memory.
constexpr qint64 mostBytes = 64 * 1024 * 1024;

std::variant<QJsonObject, ReportError> readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return ReportError{file.errorString()};
    const QByteArray bytes = file.read(mostBytes + 1);
    return bytes.size() > mostBytes ? ReportError{QStringLiteral("it is too large")} : readReport(bytes);
}

} // namespace

ExitCode convertReports(const CommandLine &line, Console &console)
{
    const QStringList outputs = line.all("output");
    for (const QString &output : outputs) {
        if (!reportFormatOf(output)) {
            console.complain(QStringLiteral("the report '%1' cannot be written: %2").arg(output, reportSuffixes()));
            return ExitCode::usage;
        }
    }
    const auto read = readFile(line.file);
    if (const auto *error = std::get_if<ReportError>(&read)) {
        console.complain(QStringLiteral("the report '%1' cannot be read: %2").arg(line.file, error->message));
        return ExitCode::usage;
    }
    const auto &report = std::get<QJsonObject>(read);
    if (outputs.isEmpty())
        console.print(convertReport(report, ReportFormat::text));
    ExitCode code = ExitCode::success;
    for (const QString &output : outputs) {
        QString problem;
        if (writeReportFile(convertReport(report, *reportFormatOf(output)), output, &problem))
            continue;
        console.complain(problem);
        code = ExitCode::notCompleted;
    }
    return code;
}

} // namespace host
