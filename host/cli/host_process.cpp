// SPDX-License-Identifier: Apache-2.0
#include "host/cli/host_process.h"

#include "host/cli/console.h"
#include "host/cli/interrupt.h"
#include "host/core/no_display.h"
#include "host/core/run_reason.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace host {

namespace {

constexpr int pollMs = 100;

HostEnd complained(Console &console, ExitCode code, const QString &reason)
{
    console.complain(reason);
    return {code, reason};
}

// The terminal has sent the interrupt to the host as well; a request to this process alone is passed on.
void endHost(QProcess &process, const HostLimits &limits)
{
    const int limitMs = static_cast<int>(limits.end.count());
    process.terminate();
    if (process.waitForFinished(limitMs))
        return;
    process.kill();
    process.waitForFinished(limitMs);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
}

std::optional<int> verdictIn(const QByteArray &text)
{
    bool isNumber = false;
    const int code = text.toInt(&isNumber);
    return isNumber ? std::optional(code) : std::nullopt;
}

HostEnd brokeDown(Console &console)
{
    return complained(console, ExitCode::notCompleted, reasonWords("REASON_HOST_BROKE_DOWN"));
}

HostEnd endOf(const QProcess &process, const std::optional<int> &verdict, Console &console)
{
    if (process.exitStatus() != QProcess::NormalExit)
        return brokeDown(console);
    const auto code = static_cast<ExitCode>(process.exitCode());
    switch (code) {
    case ExitCode::usage: // comes before any run
        return {code, {}};
    case ExitCode::noModule:
        return verdict == process.exitCode() ? HostEnd{code, {}} : complained(console, code, reasonWords("REASON_NO_MODULE"));
    case ExitCode::interrupted: // by somebody else; it has reported that
    case ExitCode::terminated:
        return verdict ? HostEnd{} : brokeDown(console);
    case ExitCode::success:
    case ExitCode::failed:
    case ExitCode::cannotBePerformed:
    case ExitCode::notCompleted:
        return verdict == process.exitCode() ? HostEnd{code, {}} : brokeDown(console);
    }
    return brokeDown(console);
}

} // namespace

std::optional<ExitCode> interruption()
{
    const int number = caughtSignal();
    if (number == 0)
        return std::nullopt;
    return number == interruptSignal ? ExitCode::interrupted : ExitCode::terminated;
}

HostEnd performHost(const QString &program, const QStringList &arguments, Console &console, const HostLimits &limits)
{
    const QTemporaryDir folder; // nobody else's verdict lies there
    if (!folder.isValid())
        return complained(console, ExitCode::notCompleted, folder.errorString());
    const QString verdict = folder.filePath(QStringLiteral("verdict"));
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments + QStringList{QStringLiteral("--verdict-file=") + verdict});
    if (!process.waitForStarted())
        return complained(console, ExitCode::noModule, reasonWords("REASON_HOST_NOT_STARTED", {process.errorString()}));
    const QDeadlineTimer limit(limits.run);
    while (process.state() != QProcess::NotRunning) {
        process.waitForFinished(pollMs);
        const bool isOverdue = limit.hasExpired() && process.state() != QProcess::NotRunning;
        if (interruption() || isOverdue)
            endHost(process, limits);
        if (isOverdue && !interruption())
            return complained(console, ExitCode::notCompleted, reasonWords("REASON_HOST_HUNG"));
    }
    if (const auto code = interruption())
        return {*code, {}};
    const QByteArray written = contentOf(verdict);
    if (process.exitCode() == static_cast<int>(ExitCode::cannotBePerformed) && written == noDisplayWords)
        return {ExitCode::cannotBePerformed, reasonWords("REASON_NO_DISPLAY")}; // it has complained itself
    return endOf(process, verdictIn(written), console);
}

} // namespace host
