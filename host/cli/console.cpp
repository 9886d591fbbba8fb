// SPDX-License-Identifier: Apache-2.0
#include "host/cli/console.h"

#include "host/cli/program_name.h"
#include "host/cli/shown_text.h"

#include <QtGlobal>

#include <cstdio>

namespace host {

namespace {

bool write(std::FILE *stream, const QByteArray &bytes)
{
    const auto byteCount = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, byteCount, stream) == byteCount;
}

} // namespace

void Console::print(const QByteArray &bytes)
{
    if (!write(stdout, bytes))
        hasFailed_ = true;
}

void Console::complain(const QString &message)
{
    explain(QStringLiteral("%1: %2\n").arg(QLatin1String(programName), shownText(message)));
}

// Static in all but use: callers speak to one object for both streams. What cannot be said cannot be complained about.
void Console::explain(const QString &text) // NOLINT(readability-convert-member-functions-to-static)
{
    static_cast<void>(write(stderr, text.toUtf8()) && std::fflush(stderr) == 0);
}

void Console::tellProgress(const QString &line)
{
    if (terminal_.errorIsWatched())
        explain(line + u'\n');
}

bool Console::isStyled() const { return terminal_.outputUnderstandsStyles() && qEnvironmentVariableIsEmpty("NO_COLOR"); }

bool Console::flush()
{
    if (std::fflush(stdout) != 0)
        hasFailed_ = true;
    return !hasFailed_;
}

} // namespace host
